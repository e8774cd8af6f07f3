// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/CommandDispatcher.h"

#include "toolbar/commands/ActionData.h"
#include "toolbar/commands/ActionTrigger.h"
#include "toolbar/commands/Backgrounds.h"
#include "toolbar/commands/ClickClock.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QTimer>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds doubleClickWait(250);

} // namespace

CommandDispatcher::CommandDispatcher(const NamedList<QAction> &actions,
                                     const NamedList<MRDropButton> &dropButtons, QTimer &wait,
                                     QString &waitingCommand)
    : m_actions(actions)
    , m_dropButtons(dropButtons)
    , m_wait(wait)
    , m_waitingCommand(waitingCommand)
{
}

void CommandDispatcher::connectCommand(QAction *command)
{
    if (ActionData::reactsToDoubleClick(command))
        watchClicks();
    // Not by a slot: to find its sender takes longer with every command that is connected.
    connect(command, &QAction::triggered, this, [this, command] { dispatch(command); });
}

void CommandDispatcher::dispatch(QAction *command)
{
    const HostAnswer answer;
    if (ActionData::isSilent(command)) {
        // The first trigger of an action without data stays unreported, and the double-click bit
        // is lost with it, deliberately: `available` and the check by name are made of this.
        ActionData::endSilence(command);
        return;
    }

    releaseOtherDropButtons(command);
    const QString name = command->objectName();
    if (Backgrounds::isBackground(name))
        Q_EMIT backgroundChosen(Backgrounds::style(name));
    else if (ActionData::reactsToDoubleClick(command))
        dispatchDoubleClick(name);
    else
        dispatchPlain(name);
}

void CommandDispatcher::releaseOtherDropButtons(QAction *command)
{
    const QActionGroup *group = command->actionGroup();
    if (!group || group->objectName() != Group::annotation)
        return;

    for (MRDropButton *button : m_dropButtons) {
        if (!button->menu() || !button->menu()->actions().contains(command))
            button->setChecked(false);
    }
}

void CommandDispatcher::dispatchPlain(QString name)
{
    const QPointer<CommandDispatcher> self(this);
    QAction *target = nullptr;
    if (name.startsWith(Prefix::menu)) {
        name.remove(0, Prefix::menu.size());
        target = m_actions.first(name);
    }
    // The target comes back through dispatch() and reports itself.
    if (target)
        triggerAction(target);
    else
        Q_EMIT activated(name);

    if (self && (name == Name::singlePage || name == Name::doublePage))
        Q_EMIT flowModeEnded();
}

void CommandDispatcher::watchClicks()
{
    if (!m_clicks)
        m_clicks = new ClickClock(this);
}

void CommandDispatcher::dispatchDoubleClick(const QString &name)
{
    watchClicks();
    const bool isLate = m_clicks->restart() > doubleClickWait.count();
    const bool isWaiting = m_wait.isActive();
    m_wait.stop();
    if (isWaiting && !isLate && name == m_waitingCommand) {
        Q_EMIT doubleActivated(name);
        return;
    }
    const QString waitingName = std::exchange(m_waitingCommand, name);
    m_wait.start(doubleClickWait);
    // The wait for the click before was over, but the application was too busy to notice.
    if (isWaiting && isLate)
        Q_EMIT activated(waitingName);
}

void CommandDispatcher::reportDelayed()
{
    m_wait.stop();
    Q_EMIT activated(m_waitingCommand);
}
