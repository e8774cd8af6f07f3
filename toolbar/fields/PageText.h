// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/Latin1.h"

#include <QString>

#include <optional>

/** The texts of the page field and of the label that shows the number of pages. */
namespace PageText {

/** What stands for "no document is open" in both. */
inline constexpr QLatin1String cleared = latin1(" ");

/** The number before the first "/" of what was entered; 0 for anything that is no number. */
int entered(const QString &text);

/** "3/12". */
QString pageOfTotal(int page, int total);

/** The text of the total in "/ 12": what follows the slash and one more character. */
std::optional<QString> totalText(const QString &reported);

/** The label with the old total replaced by a blank, which the next total fills. */
QString withoutTotal(const QString &label, int oldTotal);

/**
 * The label with the new total in place of the blank or of the old total, or at its end if it holds
 * neither. What else stands in the label stays.
 */
QString withTotal(const QString &label, int oldTotal, const QString &newTotal);

} // namespace PageText
