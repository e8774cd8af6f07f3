// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/ControlFactory.h"

#include "toolbar/build/Presentation.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/DisabledTip.h"
#include "toolbar/widgets/MRSearchBar.h"
#include "toolbar/widgets/RoundedMenu.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QPushButton>

namespace {

void showAction(QAction *action, const Controller &record, const Presentation &how)
{
    action->setText(how.text(record));
    showIcon(action, how.icon(record));
}

void showTopLineButton(QPushButton *button, const Controller &record, const Presentation &how)
{
    button->setText(how.text(record));
    showIcon(button, how.icon(record));
    showToolTip(button, record, how);
    nameWithoutText(button, record, how);
}

} // namespace

ControlFactory::ControlFactory(QWidget *owner, NamedList<QAction> &actions,
                               NamedList<QActionGroup> &groups, Presentation &presentation)
    : m_owner(owner)
    , m_actions(actions)
    , m_groups(groups)
    , m_presentation(presentation)
{
}

QAction *ControlFactory::action(const QString &name) const
{
    return m_actions.first(name);
}

QAction *ControlFactory::makeAction(const Controller &record, QObject *parent, bool isEnabled) const
{
    auto *action = new QAction(parent);
    action->setEnabled(isEnabled);
    ActionData::set(action, record.available);
    m_presentation.show<&showAction>(action, record);
    return action;
}

void ControlFactory::addAction(QAction *action)
{
    m_actions.append(action);
}

void ControlFactory::makeGroup(const QString &name, QObject *parent)
{
    if (name.isEmpty() || m_groups.first(name))
        return;

    auto *group = new QActionGroup(parent);
    group->setObjectName(name);
    group->setExclusive(true);
    m_groups.append(group);
}

bool ControlFactory::joinGroup(QAction *action, const QString &group) const
{
    QActionGroup *found = m_groups.first(group);
    if (found)
        found->addAction(action);
    return found != nullptr;
}

QPushButton *ControlFactory::makeTopLineButton(const Controller &record, QWidget *parent) const
{
    auto *button = new QPushButton(parent);
    button->setProperty(Property::inToolBar, "true");
    button->setFlat(true);
    button->setObjectName(record.name);
    m_presentation.show<&showTopLineButton>(button, record);
    m_presentation.fit<&fitSmallIcon<QPushButton>>(button);
    addDisabledTip(button, record, m_presentation);
    return button;
}

QMenu *ControlFactory::makeMenu(QWidget *parent, bool isRowMenu) const
{
    auto *menu = new QMenu(parent);
    markMenu(menu, isRowMenu);
    m_presentation.fit<&fitMenuIcons<QMenu>>(menu);
    RoundedMenu::prepare(menu);
    return menu;
}

void markMenu(QMenu *menu, bool isRowMenu)
{
    menu->setProperty(Property::inToolBar, "true");
    if (isRowMenu)
        menu->setProperty(Property::rowMenu, "true");
}

bool isRowMenu(const QMenu *menu)
{
    return menu->property(Property::rowMenu).toString() == QLatin1String("true");
}

void fitSearchBar(MRSearchBar *field, const Presentation &)
{
    field->fitLengths();
}

void showTitle(QMenu *menu, const Controller &record, const Presentation &how)
{
    menu->setTitle(how.text(record));
}

void showToolTip(QObject *control, const Controller &record, const Presentation &how)
{
    if (how.takesToolTips())
        control->setProperty("toolTip", QString());
    else
        setToolTipCard(control, how.toolTip(record), how.cardLines());
}

void showToolTipByName(QWidget *control, const Controller &record, const Presentation &how)
{
    if (how.takesToolTips())
        control->setToolTip(QString());
    else
        setToolTipCard(control, how.toolTipByName(record), how.cardLines());
}

void showDisabledTip(QObject *control, const Controller &record, const Presentation &how)
{
    DisabledTip::give(control, how.disabledToolTip(record), how.cardLines());
}

void addDisabledTip(QObject *control, const Controller &record, Presentation &presentation)
{
    if (!record.disabletip.isEmpty())
        presentation.show<&showDisabledTip>(control, record);
}

void nameWithoutText(QWidget *control, const Controller &record, const Presentation &how)
{
    if (!record.text.isEmpty())
        return;
    const QString text = how.text(record);
    control->setAccessibleName(text.isEmpty() ? toolTipTitle(how.toolTip(record)) : text);
}
