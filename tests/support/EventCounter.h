// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QObject>
#include <QSet>

#include <utility>

/** Counts the events of some types that an object gets. */
class EventCounter : public QObject
{
public:
    EventCounter(QObject *watched, const QSet<int> &types)
        : m_types(types)
    {
        watched->installEventFilter(this);
    }

    int count() const { return m_count; }
    int sinceLastAsked() { return std::exchange(m_count, 0); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += m_types.contains(event->type()) ? 1 : 0;
        return false;
    }

private:
    QSet<int> m_types;
    int m_count = 0;
};
