// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/Panel.h"

#include <QPointer>

/** The shadow that rows throw while they lie over the pages. The mouse goes through. */
class PeekShadow : public Panel
{
public:
    /** @param window owns the shadow, which is shown at the scale of @p toolBar */
    PeekShadow(const QWidget *toolBar, QWidget *window);

    /** Shows the shadow below @p rows, in pixels of the window. */
    void follow(const QRect &rows);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<const QWidget> m_toolBar;
};
