// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/PageLinks.h"

#include "document/MarkAnnotation.h"
#include "ofd/Links.h"

PageLinks::PageLinks(const Ofd::Document &document, const Ofd::DocumentRoot &root)
{
    m_pages = root.pageIndexes;
    m_bookmarks = Ofd::Links::bookmarks(root.element);
    for (int i = 0; i < document.attachments.size(); ++i)
        m_attachments.insert(document.attachments.at(i).id, i);
}

QVector<PageLink> PageLinks::on(const Ofd::Page &page, const QSet<int> &hiddenAnnotations) const
{
    QVector<Ofd::Link> links = page.links;
    for (int i = 0; i < page.annotations.size(); ++i) {
        if (page.annotations.at(i).isVisible && !hiddenAnnotations.contains(i))
            links += page.annotations.at(i).links;
    }
    QVector<PageLink> found;
    for (const Ofd::Link &link : std::as_const(links)) {
        const PageLink resolvedLink = resolved(link, page.area.topLeft());
        if (resolvedLink.isValid())
            found.append(resolvedLink);
    }
    return found;
}

PageLink PageLinks::resolved(const Ofd::Link &link, QPointF corner) const
{
    constexpr qreal unit = MarkAnnotation::millimetres;
    const QRectF area = link.area.translated(-corner);
    PageLink result;
    result.area = QRectF(area.topLeft() / unit, area.size() / unit);
    switch (link.kind) {
    case Ofd::Link::ToPlace:
        result.place = placeOf(link.destination);
        break;
    case Ofd::Link::ToBookmark:
        result.place = placeOf(m_bookmarks.value(link.target));
        break;
    case Ofd::Link::ToAddress:
        result.address = link.target;
        break;
    case Ofd::Link::ToAttachment:
        result.attachment = m_attachments.value(link.target, -1);
        break;
    }
    return result;
}

PagePlace PageLinks::placeOf(const Ofd::Destination &destination) const
{
    PagePlace place;
    place.page = m_pages.value(destination.page, -1);
    if (destination.left)
        place.left = *destination.left / MarkAnnotation::millimetres;
    if (destination.top)
        place.top = *destination.top / MarkAnnotation::millimetres;
    if (destination.zoom && *destination.zoom > 0)
        place.percent = *destination.zoom * 100;
    return place;
}
