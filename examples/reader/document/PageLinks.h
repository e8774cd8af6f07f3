// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/PageLink.h"
#include "ofd/DocumentRoot.h"

#include <QSet>

/** Finds out where the links of a file lead. */
class PageLinks
{
public:
    PageLinks(const Ofd::Document &document, const Ofd::DocumentRoot &root);

    /** The links of a page in page units; those that lead nowhere are left out. */
    QVector<PageLink> on(const Ofd::Page &page, const QSet<int> &hiddenAnnotations) const;
    /** Without a page if it leads nowhere. */
    PagePlace placeOf(const Ofd::Destination &destination) const;

private:
    PageLink resolved(const Ofd::Link &link, QPointF corner) const;

    QHash<QString, int> m_pages;
    QHash<QString, Ofd::Destination> m_bookmarks;
    QHash<QString, int> m_attachments;
};
