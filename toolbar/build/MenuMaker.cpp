// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/MenuMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/ControlReceiver.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/commands/ShownShortcuts.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/fields/RecentFiles.h"
#include "toolbar/widgets/RoundedMenu.h"

#include <QAction>
#include <QMenu>
#include <QProxyStyle>

namespace {

/** Whether what stands in a section reports itself as a command. */
bool holdsCommands(const QString &section)
{
    return section == Section::tabBar || section == Section::appButton
           || section == Section::additional;
}

void showSubMenu(QMenu *menu, const Controller &record, const Presentation &how)
{
    showTitle(menu, record, how);
    showIcon(menu, how.icon(record));
}

void showStatusTip(QAction *entry, const Controller &record, const Presentation &how)
{
    entry->setStatusTip(how.toolTip(record));
}

} // namespace

MenuMaker::MenuMaker(ControlFactory &factory, ControlReceiver &receiver, ShownShortcuts &shortcuts)
    : m_factory(factory)
    , m_receiver(receiver)
    , m_shortcuts(shortcuts)
{
}

bool MenuMaker::append(QMenu *menu, const QList<Controller *> &records, QProxyStyle *style)
{
    if (!menu || records.isEmpty())
        return false;

    for (const Controller *record : records) {
        if (!record)
            continue;
        m_factory.makeGroup(record->group, menu);
        if (!record->children.isEmpty())
            appendMenu(menu, *record, style);
        else if (record->type == Tag::separator)
            menu->addSeparator();
        else
            appendEntry(menu, *record);
    }
    return true;
}

void MenuMaker::appendMenu(QMenu *menu, const Controller &record, QProxyStyle *style)
{
    QMenu *subMenu = makeSubMenu(menu, record, style);
    append(subMenu, record.children, style);
    menu->addMenu(subMenu)->setVisible(record.visible);
}

// Apart from what calls itself, which thereby needs little of the stack for each level.
QMenu *MenuMaker::makeSubMenu(QMenu *menu, const Controller &record, QProxyStyle *style)
{
    QMenu *subMenu = RecentFiles::isMenuName(record.name) ? m_receiver.makeRecentFilesMenu(menu)
                                                          : new QMenu(menu);
    markMenu(subMenu, isRowMenu(menu));
    RoundedMenu::prepare(subMenu);
    subMenu->setObjectName(record.name);
    m_factory.presentation().show<&showSubMenu>(subMenu, record);
    addDisabledTip(subMenu->menuAction(), record, m_factory.presentation());
    if (style)
        subMenu->setStyle(style);
    else
        m_factory.presentation().fit<&fitMenuIcons<QMenu>>(subMenu);
    return subMenu;
}

void MenuMaker::appendEntry(QMenu *menu, const Controller &record)
{
    QAction *entry = m_factory.action(record.name);
    const bool isNew = !entry;
    if (isNew)
        entry = makeEntry(menu, record);

    m_factory.joinGroup(entry, record.group);
    setShortcut(entry, record);
    m_factory.presentation().show<&showStatusTip>(entry, record);
    addDisabledTip(entry, record, m_factory.presentation());
    entry->setCheckable(record.checkable);
    entry->setChecked(record.checked);
    entry->setVisible(record.visible);
    if (record.doubleclick)
        ActionData::addDoubleClick(entry);
    if (isNew)
        m_factory.addAction(entry);
    menu->addAction(entry);
    if (record.section == Section::searchBar)
        m_receiver.takeSearchOption(entry);
    else if (isNew && holdsCommands(record.section))
        m_receiver.takeCommand(entry);
    if (RecentFiles::isMenuName(menu->objectName()) && RecentFiles::isClearName(record.name))
        m_receiver.takeClearEntry(entry);
}

void MenuMaker::setShortcut(QAction *entry, const Controller &record)
{
    // The application menus belong to no window: what they show does not act. What acts in the
    // whole window does so without the entry.
    const QKeySequence sequence(record.shortcut);
    const bool actsInWindow =
        record.section == Section::tabBar && record.optIn().shortcutscope == Word::windowScope;
    if (record.section == Section::appButton || actsInWindow)
        m_shortcuts.show(entry, sequence);
    else
        m_shortcuts.activate(entry, sequence);
}

QAction *MenuMaker::makeEntry(QMenu *menu, const Controller &record)
{
    // Elsewhere than on a row every entry waits for the host's answer to DoRequestAuthority().
    const bool isEnabled = isRowMenu(menu) && record.available && record.usable;
    QAction *entry = m_factory.makeAction(record, menu, isEnabled);
    entry->setIconVisibleInMenu(true);
    entry->setObjectName(record.name);
    return entry;
}
