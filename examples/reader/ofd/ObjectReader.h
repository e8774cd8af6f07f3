// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"
#include "ofd/StyleReader.h"

namespace Ofd {

/** Reads objects from the elements of layers, page blocks, composites and appearances. */
class ObjectReader
{
public:
    /** Both must be complete when objects are read, so that missing resources are counted. */
    ObjectReader(const StyleReader &styles, const Resources &resources,
                 QMap<QString, int> &unsupported)
        : m_styles(styles)
        , m_resources(resources)
        , m_unsupported(unsupported)
    {
    }

    /** All objects inside, also in nested blocks. Throws a Fault for values above the limits. */
    Objects readAll(const XmlElement &parent, const Style &wider);

    /** Counts the objects from 0 again; the limit is for what is read for one page. */
    void restartCount() { m_count = 0; }

private:
    void readInto(Objects &objects, const XmlElement &parent, const Style &wider);
    void readOne(Objects &objects, const XmlElement &element, const Style &wider);
    void countUnknown(const XmlElement &element);
    /** The identifier in an attribute; one that is not in the table is counted as missing. */
    template <typename Table>
    QString reference(const XmlElement &element, const char *name, const Table &table);
    Object blockOf(const XmlElement &element, const Style &wider);
    Object common(const XmlElement &element, const Style &wider);
    Text textOf(const XmlElement &element);
    Image imageOf(const XmlElement &element);
    Path pathOf(const XmlElement &element);
    QVector<Clip> clipsOf(const XmlElement &element, const QTransform &placement);
    void addArea(Clip &clip, const XmlElement &shape, const QTransform &toParent);

    const StyleReader &m_styles;
    const Resources &m_resources;
    QMap<QString, int> &m_unsupported;
    qint64 m_count = 0;
};

} // namespace Ofd
