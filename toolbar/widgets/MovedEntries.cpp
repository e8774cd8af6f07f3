// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MovedEntries.h"

#include "toolbar/widgets/MRDropButton.h"

#include <QMenu>

QList<QAction *> MovedEntries::of(const QToolButton *button)
{
    QMenu *menu = button->menu();
    QAction *command = shownCommand(button);
    QList<QAction *> entries;
    if (command && (!menu || !menu->actions().contains(command)))
        entries.append(command);
    if (!menu)
        return entries;

    // The menu's own action, which the button has already, so that shortcuts act in both places.
    QAction *entry = menu->menuAction();
    const QString text = button->text().trimmed();
    if (!text.isEmpty())
        entry->setText(text);
    entry->setIcon(button->icon());
    entry->setIconVisibleInMenu(true);
    entry->setEnabled(button->isEnabledTo(button->parentWidget()));
    entries.append(entry);
    return entries;
}

void MovedEntries::release(const QToolButton *button)
{
    if (QMenu *menu = button->menu())
        menu->menuAction()->setEnabled(true);
}

void MovedEntries::fill(QMenu *menu, const QList<QAction *> &entries)
{
    const QList<QAction *> former = menu->actions();
    if (former == entries)
        return;
    for (QAction *entry : former)
        menu->removeAction(entry);
    menu->addActions(entries);
}
