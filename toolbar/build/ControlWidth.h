// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** How wide the controls of a tool row are, by the length of their texts; in pixels at 96 dpi. */
namespace ControlWidth {

/** That of the arrow of a menu, beside the text. */
inline constexpr double arrow = 12.0;

double ofButton(const QString &text);

/** A menu without entries in its description. */
double ofEmptyMenu(const QString &text);

/**
 * @param entryTexts texts of the menu's entries
 * @param index      1-based position of the entry that the button shows, or less for none
 */
double ofMenu(const QString &text, const QStringList &entryTexts, int index);

/** A button of a group that shows the entry which was last chosen. @param texts all it may show */
double ofGroupMenu(const QStringList &texts);

} // namespace ControlWidth
