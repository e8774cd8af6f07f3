// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBarParts.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/Sections.h"
#include "toolbar/widgets/FocusOrder.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

void NewToolBar::Receiver::takeCommand(QAction *command)
{
    m_toolBar.m_parts->commands.connectCommand(command);
    if (WindowShortcuts *shortcuts = m_toolBar.m_parts->windowShortcuts.get())
        shortcuts->restore(command);
    if (m_toolBar.m_parts->added)
        m_toolBar.m_parts->added->takeCommand(command);
}

void NewToolBar::Receiver::takeSearchOption(QAction *option)
{
    connect(option, &QAction::triggered, &m_toolBar, &NewToolBar::Inner_DoSearchBarActionSlot,
            Qt::UniqueConnection);
}

void NewToolBar::Receiver::takeSearchButton(QPushButton *button)
{
    connect(button, &QPushButton::clicked, &m_toolBar, &NewToolBar::Inner_DoSearchBarActionSlot);
}

void NewToolBar::Receiver::takeExtraSearchField(MRSearchBar *field)
{
    if (field->objectName().contains(Word::extraSearch))
        m_toolBar.m_extraSearchEdit = field;
    connect(field, &MRSearchBar::returnPressed, &m_toolBar,
            &NewToolBar::Inner_DoSearchBarActionSlot);
}

QMenu *NewToolBar::Receiver::makeRecentFilesMenu(QMenu *parent)
{
    QMenu *menu = m_toolBar.m_parts->recentFiles.createMenu(parent);
    connect(menu, &QMenu::triggered, &m_toolBar, &NewToolBar::Inner_DoOpenRecentFileSlot);
    return menu;
}

void NewToolBar::Receiver::takeClearEntry(QAction *entry)
{
    // Both the menu and the entry would report a cleared history; the menu's slot does it.
    disconnect(entry, &QAction::triggered, &m_toolBar.m_parts->commands, nullptr);
}

void NewToolBar::Receiver::takeDropButton(MRDropButton *button, const Controller &record)
{
    m_toolBar.m_dropButtons.append(button);
    m_toolBar.m_parts->dropMenus.add(button);
    if (record.switchable)
        m_toolBar.m_parts->keeper.takeSwitchable(button);
}

void NewToolBar::Receiver::takeGroupButton(QToolButton *button, const Controller &record)
{
    m_toolBar.m_groupButtons.append(button);
    if (record.switchable && record.checkable)
        m_toolBar.m_parts->keeper.takeSwitchable(button);
}

void NewToolBar::Receiver::takeZoomBox(QComboBox *box, const Controller &record)
{
    QStringList modes;
    QStringList texts;
    for (const Controller *item : record.children) {
        modes.append(item->name);
        texts.append(item->text);
    }
    box->installEventFilter(&m_toolBar);
    m_toolBar.m_parts->zoom.take(box, modes, texts);
}

void NewToolBar::Receiver::takePageField(QLineEdit *field, TotalLabel *caption)
{
    m_toolBar.m_parts->pages.take(field, caption);
    connect(field, &QLineEdit::returnPressed, &m_toolBar, &NewToolBar::Inner_DoGotoPageSlot);
}

void NewToolBar::Receiver::takeTotalPageLabel(TotalLabel *label)
{
    m_toolBar.m_parts->pages.takeTotalLabel(label);
}

void NewToolBar::Receiver::fillRow(MRMainToolBar *row)
{
    // Tabs of the same name share the row, and it gets the controls of all of them.
    const QList<Controller *> tabs = sectionRecords(m_toolBar.m_controllers, Section::tabBar);
    for (const Controller *tab : tabs) {
        if (tab->name == row->objectName())
            m_toolBar.AddToolBarAction(tab->children, row, false, true);
    }
    row->setFilled(true);
    FocusOrder::takeByKeysOnly(row);
    if (m_toolBar.m_parts->offer)
        m_toolBar.m_parts->offer->watch(row);
    Q_EMIT m_toolBar.DoRequestAuthority();
}

ControlLists NewToolBar::Parts::controlLists(const NewToolBar &toolBar, const ZoomBox &zoom)
{
    return {toolBar.m_hostToolBar,
            toolBar.m_topWidget,
            toolBar.m_appButtonWidgets,
            toolBar.m_quickAccessBar,
            toolBar.m_quickAccessSetButton,
            toolBar.m_tabButtons,
            toolBar.m_searchBar,
            toolBar.m_searchSetButton,
            toolBar.m_additionalWidgets,
            toolBar.m_toolBars,
            toolBar.m_currentScrollWidget,
            toolBar.m_actions,
            toolBar.m_dropButtons,
            toolBar.m_groupButtons,
            toolBar.m_pageNumberEdit,
            zoom.box()};
}

NewToolBar::Parts::Parts(NewToolBar &toolBar)
    : receiver(toolBar)
    , presentation(toolBar.m_resourceDir, *toolBar.m_appearance, *toolBar.m_scaling)
    , factory(&toolBar, toolBar.m_actions, toolBar.m_actionGroups, presentation)
    , shortcuts(&toolBar)
    , menus(factory, receiver, shortcuts)
    , panels(factory, receiver)
    , rows(factory, receiver, menus, panels)
    , commands(toolBar.m_actions, toolBar.m_dropButtons, toolBar.m_delayTimer,
               toolBar.m_delayedActionName)
    , search({toolBar.m_searchText, toolBar.m_searchDirection, toolBar.m_searchWholeWord,
              toolBar.m_searchNoCase, toolBar.m_searchNew})
    , tabs({toolBar.m_toolRowStack, toolBar.m_currentScrollWidget, toolBar.m_foldButton,
            toolBar.m_unfoldButton, toolBar.m_tabButtons, toolBar.m_toolBars,
            toolBar.m_extraGroups})
    , pages(toolBar.m_pageNumberEdit, toolBar.m_currentPage, toolBar.m_totalPages)
    , recentFiles(&toolBar)
    , states(controlLists(toolBar, zoom), dropMenus, tabs)
    , checkedStates(controlLists(toolBar, zoom), dropMenus)
    , keeper(controlLists(toolBar, zoom), tabs)
{
    connect(&keeper, &StateKeeper::changed, &toolBar, &NewToolBar::DoStateChanged);
    connect(&commands, &CommandDispatcher::activated, &toolBar, &NewToolBar::DoActive);
    connect(&commands, &CommandDispatcher::doubleActivated, &toolBar, &NewToolBar::DoDoubleActive);
    connect(&commands, &CommandDispatcher::backgroundChosen, &toolBar,
            &NewToolBar::DoSetBackground);
    connect(&commands, &CommandDispatcher::flowModeEnded, &toolBar, [&toolBar] {
        QString flowMode = Name::flowMode;
        toolBar.DoSetControlCheckedStateSlot(flowMode, false);
    });
    connect(&search, &SearchDispatcher::requested, &toolBar, &NewToolBar::DoSearchContent);
    connect(&zoom, &ZoomBox::chosen, &toolBar, &NewToolBar::DoSetZoomMode);
    connect(&recentFiles, &RecentFiles::openFile, &toolBar, &NewToolBar::DoOpenFile);
    connect(&recentFiles, &RecentFiles::clearing, &toolBar, &NewToolBar::DoActive);
    connect(&tabs, &ToolRows::rowNeeded, &toolBar,
            [this](MRMainToolBar *row) { receiver.fillRow(row); });
    connect(&tabs, &ToolRows::tabShown, &toolBar, &NewToolBar::DoTabShown);
    connect(&zoom, &ZoomBox::shown, &toolBar, [&toolBar](const QString &mode) {
        checkZoomButton(toolBar.m_actionGroups.first(Group::zoom), mode);
    });
}
