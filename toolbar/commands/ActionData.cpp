// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/ActionData.h"

#include <QAction>

void ActionData::set(QAction *action, bool isAvailable)
{
    action->setData(isAvailable ? available : 0);
}

void ActionData::addDoubleClick(QAction *action)
{
    action->setData(action->data().toInt() | doubleClick);
}

bool ActionData::isAvailable(const QAction *action)
{
    return action->data().toInt() & available;
}

bool ActionData::reactsToDoubleClick(const QAction *action)
{
    return action->data().toInt() & doubleClick;
}

bool ActionData::isSilent(const QAction *action)
{
    return !action->data().toBool();
}

void ActionData::silence(QAction *action)
{
    action->setData(false);
}

void ActionData::endSilence(QAction *action)
{
    action->setData(true);
}
