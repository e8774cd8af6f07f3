// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/NewToolBar.h"
#include "toolbar/assist/KeyTips.h"
#include "toolbar/assist/WindowShortcuts.h"
#include "toolbar/build/AddedCommands.h"
#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/ControlReceiver.h"
#include "toolbar/build/GroupPanelMaker.h"
#include "toolbar/build/MenuMaker.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/build/QuickAccessOffer.h"
#include "toolbar/build/RowMaker.h"
#include "toolbar/commands/CommandDispatcher.h"
#include "toolbar/commands/SearchDispatcher.h"
#include "toolbar/commands/ShownShortcuts.h"
#include "toolbar/description/DescribedNames.h"
#include "toolbar/fields/PageField.h"
#include "toolbar/fields/RecentFiles.h"
#include "toolbar/fields/ZoomBox.h"
#include "toolbar/find/CommandAccess.h"
#include "toolbar/find/CommandFinder.h"
#include "toolbar/state/CheckedStates.h"
#include "toolbar/state/ControlStates.h"
#include "toolbar/state/StateKeeper.h"
#include "toolbar/state/ToolRows.h"
#include "toolbar/widgets/DropMenuIndex.h"

/** Connects what the makers have made to the toolbar. */
class NewToolBar::Receiver : public ControlReceiver
{
public:
    explicit Receiver(NewToolBar &toolBar)
        : m_toolBar(toolBar)
    {
    }

    void takeCommand(QAction *command) override;
    void takeSearchOption(QAction *option) override;
    void takeSearchButton(QPushButton *button) override;
    void takeExtraSearchField(MRSearchBar *field) override;
    QMenu *makeRecentFilesMenu(QMenu *parent) override;
    void takeClearEntry(QAction *entry) override;
    void takeDropButton(MRDropButton *button, const Controller &record) override;
    void takeGroupButton(QToolButton *button, const Controller &record) override;
    void takeZoomBox(QComboBox *box, const Controller &record) override;
    void takePageField(QLineEdit *field, TotalLabel *caption) override;
    void takeTotalPageLabel(TotalLabel *label) override;

    /** Fills the row of a tab that is opened for the first time, and asks the host for states. */
    void fillRow(MRMainToolBar *row);

private:
    NewToolBar &m_toolBar;
};

/** The collaborators of a toolbar, each of which is handed what it needs. */
struct NewToolBar::Parts
{
    explicit Parts(NewToolBar &toolBar);

    static ControlLists controlLists(const NewToolBar &toolBar, const ZoomBox &zoom);

    Receiver receiver;
    Presentation presentation;
    ControlFactory factory;
    ShownShortcuts shortcuts;
    MenuMaker menus;
    GroupPanelMaker panels;
    RowMaker rows;
    CommandDispatcher commands;
    SearchDispatcher search;
    DropMenuIndex dropMenus; ///< Of the drop buttons' menus.
    ToolRows tabs;
    ZoomBox zoom;
    PageField pages;
    RecentFiles recentFiles;
    ControlStates states;
    CheckedStates checkedStates;
    std::unique_ptr<WindowShortcuts> windowShortcuts; ///< Where the description asks for them.
    std::unique_ptr<KeyTips> keyTips;                 ///< Where the skin map asks for them.
    std::unique_ptr<CommandAccess> commandAccess;     ///< From the first search for a command on.
    CommandFinder *finder = nullptr;                  ///< Likewise; a child of the toolbar.
    StateKeeper keeper;
    std::unique_ptr<AddedCommands> added; ///< Where the description lets the user add commands.
    QuickAccessOffer *offer = nullptr;    ///< Likewise.
    std::optional<DescribedNames> names;  ///< From the first question about them on.
};
