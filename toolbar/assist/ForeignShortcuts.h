// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QKeySequence;
class QShortcut;
class QWidget;

/** The shortcuts of a window that are not the library's window shortcuts. */
namespace ForeignShortcuts {

/**
 * Whether a usable action or shortcut of the window has the sequence and would be triggered by it
 * where the focus is now, by Qt's rules for the contexts of shortcuts.
 * @param isLeftOut shortcuts that do not count
 */
bool reach(QWidget *window, const QKeySequence &sequence,
           const std::function<bool(const QShortcut *)> &isLeftOut);

} // namespace ForeignShortcuts
