// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Links.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Values.h"

#include <utility>

namespace Ofd {

namespace {

std::optional<qreal> valueOf(const XmlElement &element, const char *name)
{
    const QString text = element.attribute(name);
    if (text.isEmpty())
        return std::nullopt;
    return Values::number(text, 0);
}

/** What a click starts; nothing for other events and for sounds and films. */
std::optional<Link> linkOf(const XmlElement &action)
{
    if (action.attribute("Event") != QLatin1String("CLICK"))
        return std::nullopt;
    Link link;
    if (const XmlElement *way = action.child("Goto")) {
        const XmlElement *bookmark = way->child("Bookmark");
        if (const auto destination = Links::destinationIn(*way)) {
            link.destination = *destination;
            return link;
        }
        link.kind = Link::ToBookmark;
        link.target = bookmark ? bookmark->attribute("Name") : QString();
    } else if (const XmlElement *address = action.child("URI")) {
        link.kind = Link::ToAddress;
        link.target = address->attribute("Base") + address->attribute("URI").trimmed();
    } else if (const XmlElement *attachment = action.child("GotoA")) {
        link.kind = Link::ToAttachment;
        link.target = attachment->attribute("AttachID");
    }
    return link.target.isEmpty() ? std::nullopt : std::make_optional(link);
}

/** A damaged link costs itself only. */
std::optional<Link> firstLinkOf(const XmlElement &actions)
{
    for (const XmlElement &action : actions.children) {
        try {
            if (const auto link = linkOf(action))
                return link;
        } catch (const Fault &) {
            continue;
        }
    }
    return std::nullopt;
}

/** Finds the links of a page in the order in which their objects are painted. */
class Finder
{
public:
    Finder(const Document &document, const Page &page)
        : m_document(document)
        , m_page(page)
    {
    }

    bool isFull() const { return m_count > Limits::linksPerPage; }

    /** Adds the links of the objects that are seen inside of an area of the page. */
    void find(QVector<Link> &links, const Objects &objects, const QTransform &toPage,
              const QRectF &visible)
    {
        for (const Object &object : objects) {
            const auto *composite = std::get_if<Composite>(&object.content);
            const auto *group = std::get_if<Group>(&object.content);
            if (!object.link && !composite && !group)
                continue;
            const QRectF area = toPage.mapRect(object.boundary) & visible;
            if (object.link && ++m_count <= Limits::linksPerPage) {
                links.append(*object.link);
                links.last().area = area;
            }
            // An empty boundary hides nothing.
            const QRectF &inside = object.boundary.isEmpty() ? visible : area;
            const auto parts =
                composite ? m_document.composite(composite->resource, m_page) : nullptr;
            if (parts)
                find(links, *parts, object.placement() * toPage, inside);
            else if (group)
                find(links, *group->objects, object.placement() * toPage, inside);
        }
    }

private:
    const Document &m_document;
    const Page &m_page;
    int m_count = 0;
};

} // namespace

std::shared_ptr<const Link> Links::of(const XmlElement &object)
{
    const XmlElement *actions = object.child("Actions");
    const auto link = actions ? firstLinkOf(*actions) : std::nullopt;
    return link ? std::make_shared<const Link>(*link) : nullptr;
}

bool Links::place(Page &page, const Document &document)
{
    Finder finder(document, page);
    for (const auto &layer : std::as_const(page.layers))
        finder.find(page.links, *layer, QTransform(), page.area);
    for (Annotation &annotation : page.annotations) {
        finder.find(annotation.links, {annotation.appearance}, QTransform(), page.area);
        // The whole of a link leads to its target, not only the object that has it.
        if (annotation.type == QLatin1String("Link")) {
            for (Link &link : annotation.links)
                link.area |= annotation.appearance.boundary;
        }
    }
    return !finder.isFull();
}

Destination Links::destination(const XmlElement &element)
{
    // Of the kinds of destinations those that fit the page give its zoom no number.
    return {element.attribute("PageID"), valueOf(element, "Left"), valueOf(element, "Top"),
            valueOf(element, "Zoom")};
}

std::optional<Destination> Links::destinationIn(const XmlElement &element)
{
    const XmlElement *place = element.child("Dest");
    return place ? std::make_optional(destination(*place)) : std::nullopt;
}

QHash<QString, Destination> Links::bookmarks(const XmlElement &document)
{
    QHash<QString, Destination> bookmarks;
    const XmlElement *list = document.child("Bookmarks");
    if (!list)
        return bookmarks;
    for (const XmlElement &bookmark : list->children) {
        if (const auto destination = destinationIn(bookmark))
            bookmarks.insert(bookmark.attribute("Name"), *destination);
    }
    return bookmarks;
}

} // namespace Ofd
