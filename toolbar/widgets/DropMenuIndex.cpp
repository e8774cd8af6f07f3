#include "toolbar/widgets/DropMenuIndex.h"

#include "toolbar/widgets/MRDropButton.h"

#include <QMenu>

#include <utility>

void DropMenuIndex::add(MRDropButton *button)
{
    m_changed.insert(button);
    const auto markButton = [this, button] { m_changed.insert(button); };
    connect(button, &QToolButton::toggled, this, markButton);
    // A face that is taken over makes the button checkable.
    connect(button, &MRDropButton::currentActionChanged, this, markButton);

    // An entry that is the button's own has been taken out of the menu.
    if (const QAction *entry = button->GetCurrentAction())
        addEntry(button, entry);
    if (button->menu())
        addEntries(button, button->menu());
}

void DropMenuIndex::addEntries(MRDropButton *button, const QMenu *menu)
{
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries) {
        addEntry(button, entry);
        if (entry->menu())
            addEntries(button, entry->menu());
    }
}

void DropMenuIndex::addEntry(MRDropButton *button, const QAction *entry)
{
    QList<MRDropButton *> &buttons = m_buttons[entry];
    if (buttons.isEmpty())
        connect(entry, &QAction::changed, this, [this, entry] { markButtonsOf(entry); });
    if (!buttons.contains(button))
        buttons.append(button);
}

void DropMenuIndex::markButtonsOf(const QAction *entry)
{
    const QList<MRDropButton *> buttons = buttonsOf(entry);
    for (MRDropButton *button : buttons)
        m_changed.insert(button);
}

QList<MRDropButton *> DropMenuIndex::buttonsOf(const QAction *entry) const
{
    return m_buttons.value(entry);
}

QSet<MRDropButton *> DropMenuIndex::takeChanged()
{
    return std::exchange(m_changed, {});
}
