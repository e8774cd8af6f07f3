// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/ActionTrigger.h"

#include <QAction>
#include <QActionGroup>
#include <QPointer>

void triggerAction(QAction *action)
{
    if (action->isEnabled()) {
        action->trigger();
        return;
    }

    const QPointer<QAction> self(action);
    const QActionGroup *group = action->actionGroup();
    const bool isHeldByGroup = group && group->isExclusive() && group->checkedAction() == action;
    if (action->isCheckable() && !isHeldByGroup)
        action->setChecked(!action->isChecked());
    if (self)
        Q_EMIT action->triggered(action->isChecked());
}
