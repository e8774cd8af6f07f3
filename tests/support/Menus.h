// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <functional>

class QAction;
class QMenu;

/** Runs @p action when a menu has popped up, then closes the menus that are still open. */
void whenMenuPops(const std::function<void(QMenu *)> &action);

/** The entry of that name, or the one that opens the menu of that name. */
QAction *entryOf(const QMenu *menu, const QString &name);

void clickEntry(QMenu *menu, QAction *entry);

/** Clicks through these entries, the last of which is a command; the others open menus. */
void clickEntries(QMenu *menu, const QStringList &names);
