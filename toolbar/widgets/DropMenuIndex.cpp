// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/DropMenuIndex.h"

#include "toolbar/widgets/MRDropButton.h"

#include <QMenu>

#include <utility>

void DropMenuIndex::add(MRDropButton *button)
{
    mark(button);
    const auto markButton = [this, button] { mark(button); };
    connect(button, &QToolButton::toggled, this, markButton);
    // A face that is taken over makes the button checkable.
    connect(button, &MRDropButton::currentActionChanged, this, markButton);

    // An entry that is the button's own has been taken out of the menu.
    if (QAction *entry = button->GetCurrentAction())
        addEntry(button, entry);
    if (button->menu())
        addEntries(button, button->menu());
}

void DropMenuIndex::addEntries(MRDropButton *button, const QMenu *menu)
{
    const QList<QAction *> entries = menu->actions();
    for (QAction *entry : entries) {
        addEntry(button, entry);
        if (entry->menu())
            addEntries(button, entry->menu());
    }
}

void DropMenuIndex::addEntry(MRDropButton *button, QAction *entry)
{
    Entry &filed = m_entries[entry];
    if (!filed.action) {
        filed = {entry, {}};
        connect(entry, &QAction::changed, this, [this, entry] { markButtonsOf(entry); });
    }
    if (!filed.buttons.contains(button))
        filed.buttons.append(button);
}

void DropMenuIndex::markButtonsOf(const QAction *entry)
{
    const QList<MRDropButton *> buttons = buttonsOf(entry);
    for (MRDropButton *button : buttons)
        mark(button);
}

void DropMenuIndex::mark(MRDropButton *button)
{
    m_changed.insert(button, button);
}

QList<MRDropButton *> DropMenuIndex::buttonsOf(const QAction *entry) const
{
    QList<MRDropButton *> present;
    const auto filed = m_entries.constFind(entry);
    if (filed == m_entries.cend() || filed->action != entry)
        return present;
    for (const QPointer<MRDropButton> &button : filed->buttons) {
        if (button)
            present.append(button);
    }
    return present;
}

QList<QPointer<MRDropButton>> DropMenuIndex::takeChanged()
{
    return std::exchange(m_changed, {}).values();
}
