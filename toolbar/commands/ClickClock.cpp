// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/ClickClock.h"

#include <QCoreApplication>
#include <QInputEvent>

#include <utility>

namespace {

/** Whether a command may be triggered by an event of that kind. */
bool isClick(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return true;
    default:
        return false;
    }
}

} // namespace

ClickClock::ClickClock(QObject *parent)
    : QObject(parent)
{
    m_clock.start();
    QCoreApplication::instance()->installEventFilter(this);
}

qint64 ClickClock::restart()
{
    const Click before = std::exchange(m_last, {m_eventTime, m_clock.elapsed()});
    if (before.happened && m_last.happened)
        return *m_last.happened - *before.happened;
    return m_last.handled - before.handled;
}

bool ClickClock::eventFilter(QObject *watched, QEvent *event)
{
    // What a program sends goes to the widgets themselves, and tells any time or none.
    if (watched->isWindowType() && isClick(event->type()))
        note(static_cast<qint64>(static_cast<QInputEvent *>(event)->timestamp()));
    return false;
}

void ClickClock::note(qint64 time)
{
    if (time == 0)
        return;
    m_eventTime = time;
    // By then the event has been handled, or waits for what it has started.
    QMetaObject::invokeMethod(
        this, [this] { m_eventTime.reset(); }, Qt::QueuedConnection);
}
