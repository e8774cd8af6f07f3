// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

/** How the keyboard focus comes into the toolbar other than by the Tab key or a click. */
namespace FocusEntry {

/**
 * Gives the focus to the control of that name that is on show and enabled, and scrolls its row to
 * it. The text of a field is selected; a box that takes no text opens its list.
 *
 * @return false, with nothing changed, if there is none.
 */
bool enterControl(const QWidget *area, const QString &name);

/** Gives the focus to the first control of the area that the Tab key would stop at. */
bool enterFirst(const QWidget *area);

} // namespace FocusEntry
