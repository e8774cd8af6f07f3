// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/AddedCommand.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/FocusOrder.h"
#include "toolbar/widgets/Mnemonic.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>

namespace {

void showAdded(AddedCommand *added, const Controller &, const Presentation &how)
{
    added->present(how);
}

Controller recordOf(const Controller &command)
{
    Controller record;
    record.name = Prefix::quick + command.name;
    record.text = command.text;
    record.icon = command.icon;
    record.tooltip = command.tooltip;
    return record;
}

} // namespace

AddedCommand::AddedCommand(const Controller &command, QToolBar *bar, QMenu *menu,
                           const ControlFactory &factory, QObject *parent)
    : QObject(parent)
    , m_command(command)
    , m_record(recordOf(command))
    , m_button(new QAction(bar))
    , m_entry(new QAction(menu))
{
    for (QAction *action : {m_button.data(), m_entry.data()}) {
        action->setObjectName(m_record.name);
        action->setProperty(Property::added, command.name);
    }
    ActionData::set(m_button, command.available);
    m_button->setEnabled(command.available && command.usable);
    m_button->setVisible(command.visible);
    m_button->setCheckable(command.checkable);
    m_button->setChecked(command.checked);
    // What is drawn for the coloured line is not for the menu of what has no room.
    m_button->setIconVisibleInMenu(Skin::isLum());
    m_entry->setCheckable(true);
    m_entry->setChecked(true);
    connect(m_button, &QAction::triggered, this, &AddedCommand::clicked);
    connect(m_entry, &QAction::triggered, this, &AddedCommand::removalAsked);
    factory.presentation().show<&showAdded>(this, m_record);
    placeButton(bar, factory);
    menu->addAction(m_entry);
    if (QAction *source = factory.action(command.name))
        follow(source);
}

void AddedCommand::placeButton(QToolBar *bar, const ControlFactory &factory)
{
    bar->addAction(m_button);
    FocusOrder::takeByKeysOnly(bar);
    if (QWidget *button = bar->widgetForAction(m_button))
        addDisabledTip(button, m_command, factory.presentation());
}

QString AddedCommand::ownText(const Presentation &how) const
{
    const QString given = how.textByName(m_record);
    if (!given.isEmpty())
        return given;
    const QString text = how.text(m_command);
    if (!text.isEmpty())
        return text;
    const QString title = toolTipTitle(how.toolTip(m_command));
    return title.isEmpty() ? m_command.name : title;
}

void AddedCommand::present(const Presentation &how)
{
    // The host may have deleted the bar or the menu.
    if (!m_button || !m_entry)
        return;
    const QString text = ownText(how);
    const QString tip = how.toolTipByName(m_record);
    m_button->setText(text);
    m_button->setToolTip(toolTipCard(tip.isEmpty() ? withoutMnemonic(text) : tip, how.cardLines()));
    m_button->setIcon(how.topLineIcon(m_record, withoutMnemonic(text).left(1)));
    m_entry->setText(text);
}

void AddedCommand::follow(QAction *command)
{
    if (m_source)
        return;
    m_source = command;
    connect(command, &QAction::changed, this, &AddedCommand::update);
    update();
}

void AddedCommand::update()
{
    if (!m_source || !m_button)
        return;
    m_button->setCheckable(m_source->isCheckable());
    m_button->setChecked(m_source->isChecked());
    m_button->setEnabled(m_source->isEnabled());
    m_button->setVisible(m_source->isVisible());
}

void AddedCommand::remove()
{
    for (QAction *action : {m_button.data(), m_entry.data()}) {
        if (!action)
            continue;
        action->disconnect(this);
        static_cast<QWidget *>(action->parent())->removeAction(action);
        action->deleteLater();
    }
    deleteLater();
}
