// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/ResourceReader.h"

#include <QSet>

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
    /** The sheet of pages that have none of their own. */
    QRectF commonArea() const { return m_commonArea; }
    /**
     * The sheet of a page from the start of its entry; null if it is not found there. It changes
     * nothing, so that it may run beside read().
     */
    QRectF measure(const QString &path) const;
    /** Reads the content of a page from an entry of the package. */
    Page read(const QString &path);

private:
    using Layers = QVector<std::shared_ptr<const Objects>>;
    using Composites = QHash<QString, std::shared_ptr<const Objects>>;

    struct Template
    {
        QString path;
        QString order;
        Layers layers;
        Composites composites;
        bool isRead = false;
    };

    Layers layersOf(const XmlElement &page, const QString &path, Composites *composites);
    Layers ownLayersOf(const XmlElement &page);
    Layers templatesOf(const XmlElement &page, const char *order, Composites *composites);
    const Template &templateOf(const QString &id);
    void forgetTemplates();

    const Package &m_package;
    ResourceReader &m_resources;
    QMap<QString, int> &m_unsupported;
    QRectF m_commonArea;
    QHash<QString, Template> m_templates;
    QSet<QString> m_openTemplates; ///< Those that are being read, to find circles.
    qint64 m_templateObjects = 0;  ///< How many objects templates keep.
};

} // namespace Ofd
