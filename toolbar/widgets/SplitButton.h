// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/Scheme.h"

#include <QToolButton>

/**
 * A tool button that shows by a style sheet of its own which of its two parts the pointer is over,
 * and whose menu opens with Alt+Down.
 */
class SplitButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

    /** The sheet for the pointer's place: over the arrow that opens the menu, or elsewhere. */
    virtual QString hoverSheet(bool isOverArrow) const = 0;
    /** The toolbar has another scheme; a sheet that the button keeps must follow. */
    virtual void followScheme() {}

private:
    bool isPointerOverArrow() const;

    SchemeLook m_look;
};
