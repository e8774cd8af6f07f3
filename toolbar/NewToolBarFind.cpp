// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBarCommands.h"
#include "toolbar/NewToolBarParts.h"

CommandAccess &NewToolBar::commandAccess()
{
    if (!m_parts->commandAccess)
        m_parts->commandAccess = std::make_unique<Commands>(*this);
    return *m_parts->commandAccess;
}

CommandFinder *NewToolBar::commandFinder()
{
    if (!m_parts->finder) {
        m_parts->finder = new CommandFinder(commandAccess(), this);
        CommandFinder *finder = m_parts->finder;
        StateKeeper &keeper = m_parts->keeper;
        finder->setLastFound(keeper.found());
        connect(finder, &CommandFinder::lastFoundChanged, &keeper,
                [finder, &keeper] { keeper.setFound(finder->lastFound()); });
        connect(&keeper, &StateKeeper::foundRestored, finder, &CommandFinder::setLastFound);
    }
    return m_parts->finder;
}

void NewToolBar::FindCommand()
{
    commandFinder()->open(nullptr);
}

void NewToolBar::toggleFinder(QWidget *opener)
{
    CommandFinder *finder = commandFinder();
    if (finder->isOpen())
        finder->close();
    else
        finder->open(opener);
}
