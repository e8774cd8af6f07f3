// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Pointer.h"

#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <qtestspontaneevent.h>

void movePointerAway()
{
    QCursor::setPos(1500, 1100);
}

void turnWheel(QWidget *target, const QPoint &delta)
{
    const QPoint centre = target->rect().center();
    const QPoint global = target->mapToGlobal(centre);
    QCursor::setPos(global);
    QTRY_COMPARE(QCursor::pos(), global);
    QWidget *window = target->window();
    QWheelEvent event(target->mapTo(window, centre), global, QPoint(), delta, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Qt propagates wheel events to the parents only if they are spontaneous.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window->windowHandle(), &event);
}

QPoint bodyOf(const QWidget *button)
{
    return {6, button->height() / 2};
}

QPoint arrowOf(const QWidget *button)
{
    return {button->width() - 4, button->height() / 2};
}
