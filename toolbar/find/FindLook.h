// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/SchemeColours.h"

#include <QFont>

/** What the finder is dressed in; see CommandAccess::look(). */
struct FindLook
{
    SchemeColours colours;
    float scale = 1.0F;
    QFont font;
    bool isLight = true;

    /** A length at 96 dpi in pixels. */
    int length(double designLength) const;
    /** The style sheet of the finder's field and lists. */
    QString sheet() const;
};

/** The colours where the scheme is light. @param accent what shows where the keyboard goes */
SchemeColours lightFindColours(const QColor &accent);
