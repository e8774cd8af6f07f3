// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

/** Counts the events of one type that are delivered during its lifetime. */
class EventCount : public QObject
{
public:
    explicit EventCount(QEvent::Type type)
        : m_type(type)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    int count() const { return m_count; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type)
            ++m_count;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};
