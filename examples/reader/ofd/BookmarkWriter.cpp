// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/BookmarkWriter.h"

#include "ofd/XmlCopy.h"

namespace Ofd {

namespace {

constexpr const char *listName = "Bookmarks";

/** Whether a new list has its place before the token. */
bool isPlaceOfList(const XmlCopy &copy)
{
    if (copy.ends(0))
        return true;
    for (const char *later : {"Annotations", "CustomTags", "Attachments", "Extensions"}) {
        if (copy.begins(later, 1))
            return true;
    }
    return false;
}

void write(XmlCopy &copy, const QString &name, const QString &page)
{
    QXmlStreamWriter &writer = copy.writer();
    writer.writeStartElement(copy.withPrefix("Bookmark"));
    writer.writeAttribute(QStringLiteral("Name"), allowedInXml(name));
    writer.writeStartElement(copy.withPrefix("Dest"));
    writer.writeAttribute(QStringLiteral("Type"), QStringLiteral("XYZ"));
    writer.writeAttribute(QStringLiteral("PageID"), page);
    // A zoom of 0 leaves the zoom as it is.
    for (const char *place : {"Left", "Top", "Zoom"})
        writer.writeAttribute(QLatin1String(place), QStringLiteral("0"));
    writer.writeEndElement();
    writer.writeEndElement();
}

} // namespace

QByteArray withBookmarks(const QByteArray &file, const DocumentRoot &root,
                         const BookmarkChanges &changes)
{
    const XmlElement *list = root.element.child(listName);
    const bool isEmptied = list && changes.added.isEmpty()
                           && std::size_t(changes.removed.size()) == list->childCount();
    bool mustAdd = !changes.added.isEmpty();
    int index = -1;
    XmlCopy copy(file);
    while (copy.next()) {
        const bool isInside = list && copy.ends(1) && copy.name() == QLatin1String(listName);
        if (mustAdd && (isInside || (!list && isPlaceOfList(copy)))) {
            if (!isInside)
                copy.writer().writeStartElement(copy.withPrefix(listName));
            for (const auto &bookmark : changes.added)
                write(copy, bookmark.first, root.pageIds.at(bookmark.second));
            if (!isInside)
                copy.writer().writeEndElement();
            mustAdd = false;
        }
        const bool isBookmark = copy.begins("Bookmark", 2);
        index += isBookmark ? 1 : 0;
        if ((isBookmark && changes.removed.contains(index))
            || (isEmptied && copy.begins(listName, 1)))
            copy.skip();
        else
            copy.copy();
    }
    return copy.finished();
}

} // namespace Ofd
