#pragma once

#include <QHash>
#include <QList>
#include <QString>

/**
 * A list of objects that keeps its order and its duplicates and finds by object name in constant
 * time, however many controls a description has.
 *
 * An object is filed under the name that it bears when it is appended. The list owns nothing.
 */
template <typename Object>
class NamedList
{
public:
    /** Adds an object at the end, under the name that it has now. */
    void append(Object *object)
    {
        m_positions[object->objectName()].append(m_objects.size());
        m_objects.append(object);
    }

    /** The first object of exactly that name, or null. */
    Object *first(const QString &name) const
    {
        const auto found = m_positions.constFind(name);
        return found == m_positions.cend() ? nullptr : m_objects.at(found->first());
    }

    /** The positions, in rising order, of the objects of exactly that name. */
    QList<qsizetype> positions(const QString &name) const { return m_positions.value(name); }

    /** The object at a position that there is. */
    Object *at(qsizetype position) const { return m_objects.at(position); }
    /** All objects in the order of their arrival. */
    const QList<Object *> &objects() const { return m_objects; }

    /** For loops over all objects. */
    auto begin() const { return m_objects.cbegin(); }
    /** For loops over all objects. */
    auto end() const { return m_objects.cend(); }

private:
    QList<Object *> m_objects;
    QHash<QString, QList<qsizetype>> m_positions;
};
