// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/QuickAccessMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

QuickAccessMaker::QuickAccessMaker(const ControlFactory &factory,
                                   const QList<Controller *> &records, const QString &setting)
    : m_factory(factory)
    , m_records(records)
    , m_setting(setting)
{
}

QToolBar *QuickAccessMaker::makeBar() const
{
    auto *bar = new QToolBar;
    bar->setObjectName(Section::quickAccessBar);
    bar->setProperty(Property::inToolBar, "true");
    bar->setIconSize(m_factory.iconSize(16.0));
    bar->setContextMenuPolicy(Qt::NoContextMenu);
    bar->setMovable(false);
    for (const Controller *record : m_records) {
        if (record->name == Name::customise)
            continue;
        QAction *action = makeButton(bar, *record);
        bar->addAction(action);
        nameByToolTip(bar->widgetForAction(action), record->text, record->tooltip);
    }
    return bar;
}

QAction *QuickAccessMaker::makeButton(QToolBar *bar, const Controller &record) const
{
    QAction *action = m_factory.action(record.name);
    if (!action) {
        // The host enables it when it answers DoRequestAuthority().
        action = m_factory.makeAction(record, bar, false);
        // The icons for the coloured line are white, and the menu of what has no room is not.
        action->setIconVisibleInMenu(Skin::isLum());
        action->setObjectName(record.name);
    }
    action->setChecked(record.checked);
    action->setVisible(m_setting.isShown(record.name, record.visible));
    setToolTipCard(action, record.tooltip);
    return action;
}

QMenu *QuickAccessMaker::makeMenu() const
{
    QMenu *menu = m_factory.makeMenu(QString(), m_factory.owner(), true);
    menu->setObjectName(Name::customise);
    menu->setProperty(Property::module, Module::menu);
    for (const Controller *record : m_records) {
        if (record->name != Name::customise)
            menu->addAction(makeEntry(menu, *record));
    }
    return menu;
}

QAction *QuickAccessMaker::makeEntry(QMenu *menu, const Controller &record) const
{
    auto *entry = new QAction(record.text, menu);
    entry->setIconVisibleInMenu(!menu->isEmpty());
    entry->setCheckable(record.checkable);
    entry->setChecked(m_setting.isShown(record.name, record.visible));
    entry->setObjectName(record.name);
    return entry;
}

QPushButton *QuickAccessMaker::makeCustomiseButton(QMenu *menu, const Controller &record) const
{
    QPushButton *button = m_factory.makeTopLineButton(record, nullptr);
    button->setProperty(Property::module, Module::button);
    button->setStyleSheet(QStringLiteral("QPushButton::menu-indicator{image:none;}"));
    button->setMenu(menu);

    menu->setTitle(record.tooltip);
    const QList<QAction *> entries = menu->actions();
    if (!entries.isEmpty()) {
        auto *title = new QAction(record.tooltip, menu);
        title->setObjectName(Name::customiseTitle);
        title->setEnabled(false);
        title->setIconVisibleInMenu(true);
        menu->insertAction(entries.first(), title);
    }
    return button;
}
