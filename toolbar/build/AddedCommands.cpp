// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/AddedCommands.h"

#include "toolbar/build/AddedCommand.h"
#include "toolbar/build/ControlFactory.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Names.h"
#include "toolbar/state/QuickAccessSetting.h"
#include "toolbar/widgets/HostAnswer.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>

AddedCommands::AddedCommands(const ControlFactory &factory, const QList<Controller *> &records,
                             QToolBar *bar, QPushButton *customiseButton)
    : m_factory(factory)
    , m_places(records)
    , m_bar(bar)
    , m_customiseButton(customiseButton)
{
    for (const CommandPlace &place : m_places.all()) {
        if (place.tab && !m_ofRows.contains(place.record->name))
            m_ofRows.insert(place.record->name, place);
    }
}

QStringList AddedCommands::names() const
{
    QStringList names;
    for (const AddedCommand *command : m_added)
        names.append(command->name());
    return names;
}

void AddedCommands::set(const QStringList &names)
{
    if (names == this->names())
        return;
    while (!m_added.isEmpty())
        remove(m_added.last());
    for (const QString &name : names) {
        if (isOffered(name) && !describedEntry(name))
            add(name);
    }
    showBar();
    Q_EMIT changed(this->names());
}

bool AddedCommands::isOffered(const QString &command) const
{
    if (!m_bar || !m_customiseButton || !m_ofRows.contains(command))
        return false;
    const QAction *entry = describedEntry(command);
    return !entry || entry->isCheckable();
}

bool AddedCommands::isOnBar(const QString &command) const
{
    const QAction *entry = describedEntry(command);
    return entry ? entry->isChecked() : added(command) != nullptr;
}

void AddedCommands::toggle(const QString &command)
{
    if (!isOffered(command))
        return;
    // What the entry does is done for a click on it, too.
    if (QAction *entry = describedEntry(command)) {
        entry->trigger();
        return;
    }
    if (AddedCommand *present = added(command))
        remove(present);
    else
        add(command);
    showBar();
    Q_EMIT changed(names());
}

AddedCommand *AddedCommands::added(const QString &name) const
{
    const auto found = std::find_if(m_added.begin(), m_added.end(),
                                    [&](const AddedCommand *one) { return one->name() == name; });
    return found == m_added.end() ? nullptr : *found;
}

/** The entry of the customise menu for a described button of the command; null if there is none. */
QAction *AddedCommands::describedEntry(const QString &command) const
{
    const QMenu *menu = m_customiseButton ? m_customiseButton->menu() : nullptr;
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        const QString name = entry->objectName();
        if (!entry->property(Property::added).isValid()
            && (name == command || name == Prefix::quick + command))
            return entry;
    }
    return nullptr;
}

void AddedCommands::add(const QString &name)
{
    auto *command = new AddedCommand(*m_ofRows.value(name).record, m_bar, m_customiseButton->menu(),
                                     m_factory, this);
    m_added.append(command);
    orderFocus(command->button());
    connect(command, &AddedCommand::clicked, this, [this, command] { activate(command); });
    connect(command, &AddedCommand::removalAsked, this, [this, command] {
        const HostAnswer answer;
        toggle(command->name());
    });
}

void AddedCommands::remove(AddedCommand *command)
{
    m_added.removeOne(command);
    command->remove();
}

void AddedCommands::activate(AddedCommand *command)
{
    const HostAnswer answer;
    const QPointer<AddedCommands> self(this);
    const QPointer<AddedCommand> guarded(command);
    const QString name = command->name();
    if (!command->isFollowing()) {
        Q_EMIT commandNeeded(m_ofRows.value(name));
        if (!self)
            return;
    }
    // The host's answer may have disabled it.
    QAction *action = m_factory.action(name);
    if (action && action->isEnabled() && action->isVisible())
        action->trigger();
    if (guarded)
        guarded->update();
}

/** The Tab key goes from the last button of the bar to the customise button. */
void AddedCommands::orderFocus(const QAction *button)
{
    QWidget *last = m_bar->widgetForAction(const_cast<QAction *>(button));
    QWidget::setTabOrder(m_customiseButton->previousInFocusChain(), last);
}

void AddedCommands::showBar()
{
    if (m_bar)
        showWhileUsed(m_bar);
}

void AddedCommands::takeCommand(QAction *command)
{
    if (AddedCommand *present = added(command->objectName()))
        present->follow(command);
}

void AddedCommands::setWaiting(const QString &name, void (QAction::*state)(bool), bool isOn)
{
    const AddedCommand *present = added(name);
    if (!present || !present->button() || present->isFollowing())
        return;
    if (state == &QAction::setChecked && isOn)
        uncheckGroupOf(*present);
    const bool isAboutEnabled = state == &QAction::setEnabled;
    if (!isAboutEnabled || ActionData::isAvailable(present->button()))
        (present->button()->*state)(isOn);
}

/** As its exclusive group will do when the row is made. */
void AddedCommands::uncheckGroupOf(const AddedCommand &command)
{
    for (const AddedCommand *other : std::as_const(m_added)) {
        const bool isOfGroup = other->command().group == command.command().group;
        if (isOfGroup && !other->isFollowing() && !other->command().group.isEmpty()
            && other->button())
            other->button()->setChecked(false);
    }
}
