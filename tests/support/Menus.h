#pragma once

#include <QString>

#include <functional>

class QAction;
class QMenu;

/** Runs @p action when a menu has popped up, then closes whatever is left of it. */
void whenMenuPops(const std::function<void(QMenu *)> &action);

/** The entry of that name, or the one that opens the menu of that name. */
QAction *entryOf(const QMenu *menu, const QString &name);

void clickEntry(QMenu *menu, QAction *entry);
