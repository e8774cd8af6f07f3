// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/Panel.h"

#include <QPointer>

/**
 * A ring around a control. It lies above the control, so that neither the skin's sheet nor a sheet
 * of the control's own can hide it, and is its sibling: it scrolls, and is cut off, with it.
 */
class ButtonRing : public Panel
{
    Q_OBJECT

public:
    /** @param lineWidth at 96 dpi */
    ButtonRing(QWidget *button, double lineWidth);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<QWidget> m_button;
    double m_lineWidth;
};
