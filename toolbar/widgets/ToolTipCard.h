// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QObject;

/** Where the lines of a card end. */
enum class CardLines
{
    Characters, ///< After ten characters, in the middle of a word as well.
    Words       ///< After the word with the tenth one; ideographs are words of their own.
};

/**
 * The text to show for a described tooltip: the tip itself, or, for one of the form
 * "title;description", a rich-text card with a bold title above short lines.
 * What follows a second ";" is left out.
 */
QString toolTipCard(const QString &tip, CardLines lines = CardLines::Characters);

/**
 * Gives a widget or an action its tooltip, as toolTipCard() makes it. An empty tip changes nothing.
 */
void setToolTipCard(QObject *target, const QString &tip, CardLines lines = CardLines::Characters);

/** The tip without its description: what a control that shows only an icon is called. */
QString toolTipTitle(const QString &tip);
