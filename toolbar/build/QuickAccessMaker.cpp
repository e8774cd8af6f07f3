// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/QuickAccessMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/RoundedMenu.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

namespace {

void showEntry(QAction *entry, const Controller &record, const Presentation &how)
{
    entry->setText(how.text(record));
}

void showMenuTitle(QMenu *menu, const Controller &record, const Presentation &how)
{
    menu->setTitle(how.toolTip(record));
}

void showTitleEntry(QAction *title, const Controller &record, const Presentation &how)
{
    title->setText(how.toolTip(record));
}

} // namespace

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
    m_factory.presentation().fit<&fitSmallIcon<QToolBar>>(bar);
    bar->setContextMenuPolicy(Qt::NoContextMenu);
    bar->setMovable(false);
    RoundedMenu::prepareExtensionOf(bar);
    for (const Controller *record : m_records) {
        if (record->name == Name::customise)
            continue;
        QAction *action = makeButton(bar, *record);
        bar->addAction(action);
        QWidget *button = bar->widgetForAction(action);
        m_factory.presentation().show<&nameWithoutText>(button, *record);
        addDisabledTip(button, *record, m_factory.presentation());
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
    m_factory.presentation().show<&showToolTip>(action, record);
    return action;
}

QMenu *QuickAccessMaker::makeMenu() const
{
    QMenu *menu = m_factory.makeMenu(m_factory.owner(), true);
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
    auto *entry = new QAction(menu);
    m_factory.presentation().show<&showEntry>(entry, record);
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

    m_factory.presentation().show<&showMenuTitle>(menu, record);
    const QList<QAction *> entries = menu->actions();
    if (!entries.isEmpty()) {
        auto *title = new QAction(menu);
        m_factory.presentation().show<&showTitleEntry>(title, record);
        title->setObjectName(Name::customiseTitle);
        title->setEnabled(false);
        title->setIconVisibleInMenu(true);
        menu->insertAction(entries.first(), title);
    }
    return button;
}
