// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"
#include "ofd/ObjectReader.h"

#include <QSet>

namespace Ofd {

/** Reads the resources of a document from the files that list them. */
class ResourceReader
{
public:
    ResourceReader(const Package &package, Resources &resources, QMap<QString, int> &unsupported)
        : m_package(package)
        , m_resources(resources)
        , m_unsupported(unsupported)
    {
        m_colours.setCellReader(
            [this](const XmlElement &cell) { return m_objects.readAll(cell, Style()); });
    }

    /** Reads the lists that children of @p parent, in the file @p from, with that name refer to. */
    void addLists(const XmlElement &parent, const char *name, const QString &from);
    /** Resolves references between resources. Call it after all lists have been read. */
    void finish(QHash<QString, std::shared_ptr<const Objects>> *composites);

    ColourReader &colours() { return m_colours; }
    const StyleReader &styles() const { return m_styles; }
    ObjectReader &objects() { return m_objects; }

private:
    void addList(const QString &path);
    void addFont(const XmlElement &element, const QString &folder);
    void addMedia(const XmlElement &element, const QString &folder);
    void addAny(const XmlElement &element, const QString &folder);

    const Package &m_package;
    Resources &m_resources;
    QMap<QString, int> &m_unsupported;
    ColourReader m_colours{m_unsupported};
    StyleReader m_styles{m_colours};
    ObjectReader m_objects{m_styles, m_resources, m_unsupported};
    QSet<QString> m_lists;                ///< Those that have been read since finish().
    std::vector<XmlElement> m_composites; ///< Read by finish().
};

} // namespace Ofd
