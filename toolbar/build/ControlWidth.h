// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** How wide the controls of a tool row are, by the length of their texts; in pixels. */
namespace ControlWidth {

/** @param scale physical dpi of the screen by 96 */
int ofButton(const QString &text, float scale);

/** A menu without entries in its description. */
int ofEmptyMenu(const QString &text, float scale);

/**
 * @param entryTexts texts of the menu's entries
 * @param index      1-based position of the entry that the button shows, or less for none
 */
int ofMenu(const QString &text, const QStringList &entryTexts, int index, float scale);

} // namespace ControlWidth
