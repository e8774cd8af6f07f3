// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/** The texts of the zoom box and the names of zoom modes, as pure functions. */
namespace ZoomText {

/**
 * The number at the start of what was typed, in its typed form: digits, and one point between two
 * of them. Nothing for text without a digit or with a point in a bad place.
 */
std::optional<QString> number(const QString &typed);

/** The number, or the nearest limit of 10 to 6400 percent, written as an integer. */
QString clamped(const QString &number);

/** "37" as the entry of the box shows it: "37%". */
QString entry(const QString &number);

/** "37" as the name of a mode: "vzmode_37p". */
QString mode(const QString &number);

/** What stands between "vzmode_" and the last character of a mode's name. */
QString numberOfMode(const QString &mode);

/** The percentage that a mode's name stands for; nothing for "vzmode_fitpage" and its like. */
std::optional<float> percentage(const QString &mode);

/** Whether typed text is wrong already: Chinese characters, or a letter in text without blanks. */
bool isInvalid(const QString &typed);

} // namespace ZoomText
