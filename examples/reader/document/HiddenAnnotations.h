// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QMutex>
#include <QSet>

/**
 * The annotations that the pages of a file do not paint: deleted ones, and those that are marks.
 * Pages and annotations have their indexes in the file. May be used by several threads.
 */
class HiddenAnnotations
{
public:
    void set(int page, int annotation, bool isHidden)
    {
        const QMutexLocker lock(&m_mutex);
        if (isHidden)
            m_hidden[page].insert(annotation);
        else
            m_hidden[page].remove(annotation);
    }

    QSet<int> on(int page) const
    {
        const QMutexLocker lock(&m_mutex);
        return m_hidden.value(page);
    }

private:
    mutable QMutex m_mutex;
    QHash<int, QSet<int>> m_hidden;
};
