// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Extras.h"

#include "ofd/Links.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

namespace Ofd {

namespace {

void add(Document &document, const QString &name, const QString &value)
{
    if (!value.isEmpty())
        document.information.append({name, value});
}

/** The first destination among the descendants; nullptr if there is none. */
const XmlElement *destinationOf(const XmlElement &element)
{
    for (const XmlElement &child : element.children) {
        if (child.is("Dest"))
            return &child;
        // Destinations inside nested entries of an outline belong to those entries.
        const XmlElement *found = child.is("OutlineElem") ? nullptr : destinationOf(child);
        if (found)
            return found;
    }
    return nullptr;
}

Target targetOf(const XmlElement &element, const char *name, int depth,
                const QHash<QString, int> &pages)
{
    Target target;
    target.title = element.attribute(name);
    target.depth = depth;
    if (const XmlElement *destination = destinationOf(element))
        target.destination = Links::destination(*destination);
    target.page = pages.value(target.destination.page, -1);
    return target;
}

void readOutline(const XmlElement &parent, int depth, const QHash<QString, int> &pages,
                 QVector<Target> &outline)
{
    for (const XmlElement &element : parent.children) {
        if (!element.is("OutlineElem"))
            continue;
        outline.append(targetOf(element, "Title", depth, pages));
        readOutline(element, depth + 1, pages, outline);
    }
}

} // namespace

std::optional<XmlElement> Extras::namedFile(const Package &package, const XmlElement &parent,
                                            const char *name, const QString &from, QString *path)
{
    *path = package.find(from, parent.childText(name));
    if (path->isEmpty())
        return std::nullopt;
    return XmlElement::parse(package.read(*path), *path);
}

void Extras::readInformation(const XmlElement &information, Document &document)
{
    static constexpr std::pair<const char *, const char *> names[] = {
        {"Title", QT_TRANSLATE_NOOP("Ofd", "标题")},
        {"Author", QT_TRANSLATE_NOOP("Ofd", "作者")},
        {"Subject", QT_TRANSLATE_NOOP("Ofd", "主题")},
        {"Abstract", QT_TRANSLATE_NOOP("Ofd", "摘要")},
        {"DocUsage", QT_TRANSLATE_NOOP("Ofd", "用途")},
        {"CreationDate", QT_TRANSLATE_NOOP("Ofd", "创建日期")},
        {"ModDate", QT_TRANSLATE_NOOP("Ofd", "修改日期")},
        {"Creator", QT_TRANSLATE_NOOP("Ofd", "创建程序")},
        {"CreatorVersion", QT_TRANSLATE_NOOP("Ofd", "程序版本")},
        {"DocID", QT_TRANSLATE_NOOP("Ofd", "文档标识")},
    };
    document.title = information.childText("Title");
    for (const auto &name : names)
        add(document, Wording::tr(name.second), information.childText(name.first));
    if (const XmlElement *keywords = information.child("Keywords")) {
        QStringList words;
        for (const XmlElement &word : keywords->children)
            words.append(word.text.trimmed());
        add(document, Wording::tr("关键词"), words.join(Wording::tr("、")));
    }
    if (const XmlElement *custom = information.child("CustomDatas")) {
        for (const XmlElement &item : custom->children)
            add(document, item.attribute("Name"), item.text.trimmed());
    }
}

void Extras::readTargets(const XmlElement &root, const QHash<QString, int> &pages,
                         Document &document)
{
    if (const XmlElement *outline = root.child("Outlines"))
        readOutline(*outline, 0, pages, document.outline);
    const XmlElement *bookmarks = root.child("Bookmarks");
    if (!bookmarks)
        return;
    for (const XmlElement &bookmark : bookmarks->children) {
        if (bookmark.is("Bookmark"))
            document.bookmarks.append(targetOf(bookmark, "Name", 0, pages));
    }
}

void Extras::readAttachments(const XmlElement &root, const QString &from, Document &document)
{
    QString path;
    const std::optional<XmlElement> list =
        namedFile(*document.package, root, "Attachments", from, &path);
    if (!list)
        return;
    for (const XmlElement &attachment : list->children) {
        if (!attachment.flag("Visible", true))
            continue;
        const QString location = attachment.childText("FileLoc");
        const QString file = document.package->find(path, location);
        // A missing file keeps its location, which is named when the attachment is to be opened.
        document.attachments.append({attachment.attribute("ID"), attachment.attribute("Name"),
                                     file.isEmpty() ? location : file});
    }
}

} // namespace Ofd
