// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/ResourceReader.h"

namespace Ofd {

/** Reads pages with the templates below and above them. */
class PageReader
{
public:
    PageReader(const Package &package, ResourceReader &resources, QMap<QString, int> &unsupported)
        : m_package(package)
        , m_resources(resources)
        , m_unsupported(unsupported)
    {
    }

    /** Reads the settings for all pages from the common data in the file @p from. */
    void readCommon(const XmlElement &data, const QString &from);
    /** Reads the page that an element of the list of pages in the file @p from refers to. */
    Page read(const XmlElement &element, const QString &from);

private:
    using Layers = QVector<std::shared_ptr<const Objects>>;

    struct Template
    {
        QString path;
        QString order;
        Layers layers;
        bool isRead = false;
        bool isBegun = false; ///< Reading has begun or is done.
    };

    Layers layersOf(const XmlElement &page);
    Layers ownLayersOf(const XmlElement &page);
    Layers templatesOf(const XmlElement &page, const char *order);
    const Layers &layersOfTemplate(const QString &id);

    const Package &m_package;
    ResourceReader &m_resources;
    QMap<QString, int> &m_unsupported;
    QRectF m_commonArea;
    QHash<QString, Template> m_templates;
    QHash<QString, Page> m_read; ///< By path, so that a file shared by pages is read once.
};

} // namespace Ofd
