// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QObject;

/**
 * The text to show for a described tooltip: the tip itself, or, for one of the form
 * "title;description", a rich-text card with a bold title above lines of ten characters.
 * What follows a second ";" is left out.
 */
QString toolTipCard(const QString &tip);

/**
 * Gives a widget or an action its tooltip, as toolTipCard() makes it. An empty tip changes nothing.
 */
void setToolTipCard(QObject *target, const QString &tip);

/** The tip without its description: what a control that shows only an icon is called. */
QString toolTipTitle(const QString &tip);
