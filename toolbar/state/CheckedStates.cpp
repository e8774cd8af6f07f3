// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/CheckedStates.h"

#include "toolbar/commands/ActionData.h"
#include "toolbar/commands/ActionTrigger.h"
#include "toolbar/description/Names.h"
#include "toolbar/state/ControlRules.h"
#include "toolbar/widgets/DropMenuIndex.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

/** The same objects, of which the host's code may delete some in the middle. */
template <typename Object>
QList<QPointer<Object>> guarded(const QList<Object *> &objects)
{
    return {objects.begin(), objects.end()};
}

/** Triggers the action without a report to the host. */
void triggerSilently(QAction *action)
{
    const QPointer<QAction> guarded(action);
    const QVariant data = action->data();
    ActionData::silence(action);
    triggerAction(action);
    // Only the dispatcher ends the silence, and not every action is connected to it.
    if (guarded && ActionData::isSilent(action))
        action->setData(data);
}

bool hasCheckedAction(const QMenu *menu)
{
    if (!menu)
        return false;
    const QList<QAction *> actions = menu->actions();
    return std::any_of(actions.begin(), actions.end(),
                       [](const QAction *action) { return action->isChecked(); });
}

} // namespace

CheckedStates::CheckedStates(ControlLists lists, DropMenuIndex &dropMenus)
    : m_lists(std::move(lists))
    , m_dropMenus(dropMenus)
{
}

void CheckedStates::setChecked(const QString &name, bool checked)
{
    const QPointer<CheckedStates> self(this);
    // The host may change its own text in the middle.
    const QString wanted = name;
    QList<QAction *> actions;
    for (const qsizetype position : m_lists.actions.positions(wanted))
        actions.append(m_lists.actions.at(position));
    const auto guardedActions = guarded(actions);
    for (const QPointer<QAction> &action : guardedActions) {
        if (!action || action->isChecked() == checked)
            continue;
        if (checked)
            triggerSilently(action);
        else
            action->setChecked(false);
        if (!self)
            return;
    }
    matchDropButtonsToMenus();
    if (self)
        endShapeTool(wanted);
}

void CheckedStates::matchDropButtonsToMenus()
{
    const QPointer<CheckedStates> self(this);
    // Those that nothing has happened to since the last time still match.
    const QList<QPointer<MRDropButton>> buttons = m_dropMenus.takeChanged();
    for (const QPointer<MRDropButton> &button : buttons) {
        if (button)
            button->setChecked(hasCheckedAction(button->menu()));
        if (!self)
            return;
    }
}

void CheckedStates::endShapeTool(const QString &checkedName)
{
    // Any other control's state ends an active shape tool, whatever the state, deliberately.
    if (checkedName == Name::watermark || checkedName.contains(Prefix::shape))
        return;
    if (MRDropButton *shapes = m_lists.dropButtons.first(Name::shapes))
        shapes->setChecked(false);
}

bool CheckedStates::isChecked(const QString &name) const
{
    for (const Control &control : ControlFinders::namedActions(m_lists, name)) {
        const auto *action = std::get<QAction *>(control);
        if (action->isCheckable())
            return action->isChecked();
    }
    return false;
}

void CheckedStates::uncheckAll()
{
    const QPointer<CheckedStates> self(this);
    const auto actions = guarded(m_lists.actions.objects());
    for (const QPointer<QAction> &action : actions) {
        if (action)
            action->setChecked(false);
    }
    if (!self)
        return;
    const auto buttons = guarded(m_lists.dropButtons.objects());
    for (const QPointer<MRDropButton> &button : buttons) {
        if (button)
            button->setChecked(false);
    }
}
