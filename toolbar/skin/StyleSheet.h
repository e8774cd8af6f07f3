// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

/** The text of a UTF-8 file without its byte-order mark; empty if it can't be opened. */
QString LoadQss(const QString &path);

/** The steps from a style sheet template to a finished sheet; pure functions of their arguments. */
namespace StyleSheet {

/**
 * The template with every key of @p skin, placeholder or not, replaced by its value in the key
 * order of the map, and with the sizes filled in. Placeholders without a key stay as they are.
 */
QString filled(QString sheet, const QMap<QString, QString> &skin, bool isCompact);

/** The sheet with every length in pixels multiplied by @p factor and rounded half up. */
QString scaled(const QString &sheet, float factor);

/** The sheet with a push button of another name looking like the named one. */
QString withLookOf(QString sheet, QLatin1String button, QLatin1String other);

/** The sheet without what it says of the family and the size of fonts. */
QString withoutFonts(QString sheet);

/**
 * The lengths of a toolbar for fingers: the template with its placeholders filled.
 * @param target the least side of a button, in pixels
 * @param factor what the lengths of the result are going to be multiplied by
 */
QString forTouch(QString sheet, int target, float factor);

} // namespace StyleSheet
