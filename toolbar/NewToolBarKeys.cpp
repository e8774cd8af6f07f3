// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/description/CommandPlaces.h"
#include "toolbar/description/Controller.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>

namespace {

/** What the keys act in. */
QWidget *keyArea(QMainWindow *mainWindow, QWidget *toolBar)
{
    return mainWindow ? static_cast<QWidget *>(mainWindow) : toolBar;
}

} // namespace

void NewToolBar::makeWindowShortcuts()
{
    const QList<const Controller *> wanted = WindowShortcuts::wantedBy(m_controllers);
    if (wanted.isEmpty())
        return;

    m_parts->windowShortcuts = std::make_unique<WindowShortcuts>(
        wanted, CommandPlaces(m_controllers), keyArea(m_mainWindow, this),
        [this](const CommandPlace &place) { return isUsable(place); });
    for (QAction *command : m_actions)
        m_parts->windowShortcuts->restore(command);
    connect(m_parts->windowShortcuts.get(), &WindowShortcuts::pressed, this,
            &NewToolBar::useByKeys);
}

/**
 * Whether the user may trigger a command of a row or an application menu. One that has not been
 * made is asked about when it is, and so only what it stands in counts.
 */
bool NewToolBar::isUsable(const CommandPlace &place)
{
    const QToolBar *row = place.tab ? m_toolBars.value(place.tab->name).data() : nullptr;
    const bool isHolderUsable =
        (!row || row->isEnabled()) && commandAccess().state(place).isEnabled;
    const bool isToolBarUsable = !m_hostToolBar || m_hostToolBar->isEnabled();
    const QAction *command = m_actions.first(place.record->name);
    return isHolderUsable && isToolBarUsable && (!command || command->isVisible());
}

void NewToolBar::useByKeys(const CommandPlace &place)
{
    // The host may delete this toolbar or disable the command when it is asked for the states.
    if (!makeCommand(place) || !isUsable(place))
        return;
    if (QAction *command = m_actions.first(place.record->name))
        command->trigger();
}

/** "true" or "false"; any other text changes nothing. */
void NewToolBar::chooseKeyTips(const QString &choice)
{
    if (choice == QLatin1String("false"))
        m_parts->keyTips.reset();
    if (choice != QLatin1String("true") || m_parts->keyTips)
        return;
    m_parts->keyTips = std::make_unique<KeyTips>(this, keyArea(m_mainWindow, this), m_controllers,
                                                 Parts::controlLists(*this, m_parts->zoom));
}
