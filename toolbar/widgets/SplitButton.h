// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

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

    /** The sheet for the pointer's place: over the arrow that opens the menu, or elsewhere. */
    virtual QString hoverSheet(bool isOverArrow) const = 0;

private:
    bool isPointerOverArrow() const;
};
