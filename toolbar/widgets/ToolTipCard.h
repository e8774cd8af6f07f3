#pragma once

#include <QString>

/**
 * The text to show for a described tooltip: the tip itself, or, for one of the form
 * "title;description", a rich-text card with a bold title above lines of ten characters.
 * What follows a second ";" is left out.
 */
QString toolTipCard(const QString &tip);

/** The tip without its description: what a control that shows only an icon is called. */
QString toolTipTitle(const QString &tip);
