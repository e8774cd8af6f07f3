// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/ControlFactory.h"

#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QPushButton>

ControlFactory::ControlFactory(QWidget *owner, NamedList<QAction> &actions,
                               NamedList<QActionGroup> &groups, const QString &directory,
                               Appearance &appearance, float scale)
    : m_owner(owner)
    , m_actions(actions)
    , m_groups(groups)
    , m_directory(directory)
    , m_appearance(appearance)
    , m_scale(scale)
{
}

QIcon ControlFactory::icon(const QString &name) const
{
    return m_appearance.icon(skinIconPath(m_directory, name));
}

int ControlFactory::scaled(double designLength) const
{
    return ScreenDensity::scaled(designLength, m_scale);
}

QSize ControlFactory::iconSize(double designSide) const
{
    const int side = scaled(designSide);
    return {side, side};
}

QAction *ControlFactory::action(const QString &name) const
{
    return m_actions.first(name);
}

QAction *ControlFactory::makeAction(const Controller &record, QObject *parent, bool isEnabled) const
{
    auto *action = new QAction(record.text, parent);
    action->setEnabled(isEnabled);
    ActionData::set(action, record.available);
    action->setIcon(icon(record.icon));
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
    button->setText(record.text);
    button->setIcon(icon(record.icon));
    button->setIconSize(iconSize(16.0));
    setToolTipCard(button, record.tooltip);
    nameByToolTip(button, record.text, record.tooltip);
    return button;
}

QMenu *ControlFactory::makeMenu(const QString &text, QWidget *parent, bool isRowMenu) const
{
    auto *menu = new QMenu(text, parent);
    markMenu(menu, isRowMenu);
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

void nameByToolTip(QWidget *control, const QString &text, const QString &tip)
{
    if (text.isEmpty())
        control->setAccessibleName(toolTipTitle(tip));
}
