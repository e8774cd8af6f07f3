// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>

#include <cstddef>
#include <vector>

/**
 * A list of objects that keeps its order and its duplicates and finds by object name in constant
 * time, however many controls a description has.
 *
 * An object is filed under the name that it bears when it is appended. The list owns nothing, and
 * passes over objects that have been destroyed; the positions of the others stay what they are.
 */
template <typename Object>
class NamedList
{
public:
    /** Goes through the objects that there were when it was made. */
    class Iterator
    {
    public:
        Iterator(const NamedList *list, std::size_t position, std::size_t end)
            : m_list(list)
            , m_position(position)
            , m_end(end)
        {
            skipDestroyed();
        }

        Object *operator*() const { return m_list->m_objects[m_position]; }
        Iterator &operator++()
        {
            ++m_position;
            skipDestroyed();
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_position != other.m_position; }

    private:
        void skipDestroyed()
        {
            while (m_position < m_end && !m_list->m_objects[m_position])
                ++m_position;
        }

        const NamedList *m_list;
        std::size_t m_position;
        std::size_t m_end;
    };

    /** Adds an object at the end, under the name that it has now. */
    void append(Object *object)
    {
        m_positions[object->objectName()].append(static_cast<qsizetype>(m_objects.size()));
        m_objects.push_back(object);
    }

    /** The first object of exactly that name, or null. */
    Object *first(const QString &name) const
    {
        const auto found = m_positions.constFind(name);
        if (found == m_positions.cend())
            return nullptr;
        for (const qsizetype position : *found) {
            if (Object *object = at(position))
                return object;
        }
        return nullptr;
    }

    /** The positions, in rising order, that objects of exactly that name were appended at. */
    QList<qsizetype> positions(const QString &name) const { return m_positions.value(name); }

    /** The object at a position; null if there never was one, or if it has been destroyed. */
    Object *at(qsizetype position) const
    {
        const auto index = static_cast<std::size_t>(position);
        return index < m_objects.size() ? m_objects[index] : nullptr;
    }

    /** All objects in the order of their arrival. */
    QList<Object *> objects() const
    {
        QList<Object *> present;
        for (Object *object : *this)
            present.append(object);
        return present;
    }

    /** For loops over all objects; the body may append and destroy some. */
    Iterator begin() const { return {this, 0, m_objects.size()}; }
    /** For loops over all objects. */
    Iterator end() const { return {this, m_objects.size(), m_objects.size()}; }

private:
    std::vector<QPointer<Object>> m_objects;
    QHash<QString, QList<qsizetype>> m_positions;
};
