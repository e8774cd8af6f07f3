// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

#include <QStringList>

/** What the mouse does on a page; selected by the object name of the tool's control. */
struct PageTool
{
    enum Gesture
    {
        Pan,        ///< Scrolls the pages by dragging.
        SelectText, ///< Selects text, for copying or for marking.
        MarkText,   ///< Marks the text between press and release.
        DrawShape,  ///< Draws the mark between press and release.
        DrawInk,    ///< Draws ink along the mouse.
        Erase,      ///< Erases ink under the mouse.
        PlaceText   ///< Asks for a text and adds it at the place of the press.
    };

    QString name;
    Gesture gesture = Pan;
    MarkKind kind = MarkKind::Highlight;
    QColor colour;
    qreal width = 2; ///< The width of the line or the eraser.
    QString sign;    ///< The sign of a revision.

    /** The tool of that name; the hand for an unknown name. */
    static PageTool of(const QString &name);
    static QStringList names();
    /** The names of the pens, from thin to thick. */
    static QStringList penNames();
};
