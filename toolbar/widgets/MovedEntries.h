// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QAction;
class QMenu;
class QToolButton;

/** What stands in a menu for buttons that have moved there. */
namespace MovedEntries {

/**
 * The command of a button; or its menu, with the icon and the text of now, after the command that a
 * click repeats if the menu lacks that.
 */
QList<QAction *> of(const QToolButton *button);

/** The button is on its row again. */
void release(const QToolButton *button);

/** Has the menu hold these entries and no others; whose they are does not change. */
void fill(QMenu *menu, const QList<QAction *> &entries);

} // namespace MovedEntries
