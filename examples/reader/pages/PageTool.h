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
        Pan,        ///< Drags the page about.
        SelectText, ///< Selects text, for copying or for marking.
        MarkText,   ///< Puts the mark on the text that is dragged over.
        DrawShape,  ///< Draws the mark between press and release.
        DrawInk,    ///< Follows the mouse.
        Erase,      ///< Rubs out ink under the mouse.
        PlaceText   ///< Asks for a text and puts it where the mouse was pressed.
    };

    QString name;
    Gesture gesture = Pan;
    MarkKind kind = MarkKind::Highlight;
    QColor colour;
    qreal width = 2; ///< Of the line, or of the eraser.
    QString sign;    ///< Of revisions.

    /** The tool of that name; the hand for an unknown name. */
    static PageTool of(const QString &name);
    static QStringList names();
    /** The names of the pens, from thin to thick. */
    static QStringList penNames();
};
