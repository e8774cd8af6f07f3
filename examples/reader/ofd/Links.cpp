// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Links.h"

#include "ofd/Fault.h"
#include "ofd/Values.h"

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

/** Lower objects come first, as they do in the file. */
void addLinks(QVector<Link> &links, const XmlElement &parent, QPointF origin)
{
    for (const XmlElement &element : parent.children) {
        if (!element.name.endsWith(QLatin1String("Object"))) {
            addLinks(links, element, origin);
            continue;
        }
        const XmlElement *actions = element.child("Actions");
        if (!actions || !element.flag("Visible", true))
            continue;
        if (auto link = firstLinkOf(*actions)) {
            link->area = Values::box(element.attribute("Boundary")).translated(origin);
            links.append(*link);
        }
    }
}

} // namespace

QVector<Link> Links::read(const XmlElement &parent, QPointF origin)
{
    QVector<Link> links;
    addLinks(links, parent, origin);
    return links;
}

std::optional<Destination> Links::destinationIn(const XmlElement &element)
{
    const XmlElement *place = element.child("Dest");
    if (!place)
        return std::nullopt;
    // Of the kinds of destinations those that fit the page give its zoom no number.
    return Destination{place->attribute("PageID"), valueOf(*place, "Left"), valueOf(*place, "Top"),
                       valueOf(*place, "Zoom")};
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
