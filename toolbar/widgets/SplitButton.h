// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/Scheme.h"

#include <QToolButton>

#include <optional>

struct SchemeColours;

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
    virtual QString hoverSheet(bool isOverArrow, const SchemeColours *colours) const = 0;
    /** What the sheet depends on besides the pointer, the menu and the look has changed. */
    void forgetHover() { m_hover.reset(); }
    /** The toolbar has another scheme; a sheet that the button keeps must follow. */
    virtual void followScheme() {}

private:
    /** What the sheet under the pointer is made for. */
    struct Hover
    {
        bool isOverArrow;
        bool hasMenu;
        bool isLum;
        double scale;
        SchemeLook look;

        bool operator==(const Hover &other) const;
    };

    Hover hover() const;
    bool isPointerOverArrow() const;

    SchemeLook m_look;
    std::optional<Hover> m_hover;
    QString m_hoverSheet;
};
