#include "toolbar/NewToolBar.h"

#include "toolbar/ActionData.h"
#include "toolbar/ActionTrigger.h"
#include "toolbar/QtCompat.h"
#include "toolbar/commands/ClickClock.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds doubleClickWait(250);

constexpr QLatin1String menuPrefix = QtCompat::latin1("menu_");
constexpr QLatin1String annotationGroup = QtCompat::latin1("annotgroup");

/** Whether a name is a background's; any name with the word in it is, deliberately. */
bool isBackground(const QString &name)
{
    return name.contains(QLatin1String("background"));
}

BackgroundStyle backgroundOf(const QString &name)
{
    if (name == QLatin1String("background_nighttime"))
        return Background_Nighttime;
    if (name == QLatin1String("background_daytime"))
        return Background_Daytime;
    if (name == QLatin1String("background_parchment"))
        return Background_Parchment;
    if (name == QLatin1String("background_eyeguard"))
        return Background_Eyeguard;
    return Background_Default;
}

} // namespace

QAction *NewToolBar::GetActionInTotal(QString name)
{
    return m_actions.first(name);
}

QActionGroup *NewToolBar::GetActionGroup(QString name)
{
    return m_actionGroups.first(name);
}

void NewToolBar::connectCommand(QAction *action)
{
    // Not by the slot: to find its sender takes longer with every command that is connected.
    connect(action, &QAction::triggered, this, [this, action] { dispatchAction(action); });
}

void NewToolBar::Inner_DoBarActionSlot()
{
    if (auto *action = qobject_cast<QAction *>(sender()))
        dispatchAction(action);
}

void NewToolBar::dispatchAction(QAction *action)
{
    const HostAnswer answer;
    if (ActionData::isSilent(action)) {
        // The first trigger of an action without data stays unreported, and the double-click bit
        // is lost with it, deliberately: `available` and the check by name are made of this.
        ActionData::endSilence(action);
        return;
    }

    releaseOtherDropButtons(action);
    const QString name = action->objectName();
    if (isBackground(name))
        Q_EMIT DoSetBackground(backgroundOf(name));
    else if (ActionData::reactsToDoubleClick(action))
        dispatchDoubleClickAction(name);
    else
        dispatchPlainAction(name);
}

void NewToolBar::releaseOtherDropButtons(QAction *action)
{
    const QActionGroup *group = action->actionGroup();
    if (!group || group->objectName() != annotationGroup)
        return;

    for (MRDropButton *button : std::as_const(m_dropButtons)) {
        if (!button->menu() || !button->menu()->actions().contains(action))
            button->setChecked(false);
    }
}

void NewToolBar::dispatchPlainAction(QString name)
{
    const QPointer<NewToolBar> self(this);
    QAction *target = nullptr;
    if (name.startsWith(menuPrefix)) {
        name.remove(0, menuPrefix.size());
        target = GetActionInTotal(name);
    }
    // The target comes back through dispatchAction() and reports itself.
    if (target)
        triggerAction(target);
    else
        Q_EMIT DoActive(name);

    if (self
        && (name == QLatin1String("vpmode_singlepage")
            || name == QLatin1String("vpmode_doublepage"))) {
        QString flowMode = QStringLiteral("vmode_flow");
        DoSetControlCheckedStateSlot(flowMode, false);
    }
}

void NewToolBar::watchClicks()
{
    if (!m_clickClock)
        m_clickClock = new ClickClock(this);
}

void NewToolBar::dispatchDoubleClickAction(const QString &name)
{
    watchClicks();
    const bool isLate = m_clickClock->restart() > doubleClickWait.count();
    const bool isWaiting = m_delayTimer.isActive();
    m_delayTimer.stop();
    if (isWaiting && !isLate && name == m_delayedActionName) {
        Q_EMIT DoDoubleActive(name);
        return;
    }
    const QString waitingName = std::exchange(m_delayedActionName, name);
    m_delayTimer.start(doubleClickWait);
    // The wait for the click before was over, but the application too busy to notice.
    if (isWaiting && isLate)
        Q_EMIT DoActive(waitingName);
}

void NewToolBar::Inner_DoDelayActionSlot()
{
    m_delayTimer.stop();
    Q_EMIT DoActive(m_delayedActionName);
}
