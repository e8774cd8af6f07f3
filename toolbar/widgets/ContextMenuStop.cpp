// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ContextMenuStop.h"

#include <QEvent>
#include <QWidget>

ContextMenuStop::ContextMenuStop(QWidget *widget)
    : QObject(widget)
{
    widget->installEventFilter(this);
}

bool ContextMenuStop::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    event->accept();
    return true;
}
