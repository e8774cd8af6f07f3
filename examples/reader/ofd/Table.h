// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QReadWriteLock>
#include <QStringList>

namespace Ofd {

/** Values by name. Threads may share it, because reading a page adds to what others look up. */
template <typename Value>
class Table
{
public:
    bool isEmpty() const { return all().isEmpty(); }
    bool contains(const QString &name) const { return all().contains(name); }
    Value value(const QString &name) const { return all().value(name); }
    QStringList keys() const { return all().keys(); }

    /** What is in it now; a copy that shares its content. */
    QHash<QString, Value> all() const
    {
        const QReadLocker guard(&m_lock);
        return m_values;
    }

    /** Returns whether there was none of that name. */
    bool insert(const QString &name, const Value &value)
    {
        const QWriteLocker guard(&m_lock);
        const auto before = m_values.size();
        m_values.insert(name, value);
        return m_values.size() > before;
    }

    /** Adds to a number, which is 0 before. */
    void add(const QString &name, const Value &more)
    {
        const QWriteLocker guard(&m_lock);
        m_values[name] += more;
    }

private:
    mutable QReadWriteLock m_lock;
    QHash<QString, Value> m_values;
};

} // namespace Ofd
