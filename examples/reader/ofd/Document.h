// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Link.h"
#include "ofd/Objects.h"
#include "ofd/Package.h"

#include <QMap>
#include <QPair>
#include <QStringList>

namespace Ofd {

struct Font
{
    QString name;
    QString family;
    bool isBold = false;
    bool isItalic = false;
    bool hasSerifs = false;
    QString file; ///< Its entry in the package; empty for a font that is not embedded.
};

/** The resources that pages refer to by identifiers, which are unique in the document. */
struct Resources
{
    QHash<QString, Font> fonts;
    QHash<QString, QString> images; ///< Their entries in the package.
    QHash<QString, std::shared_ptr<const Objects>> composites;
};

/** A mark on a page that is kept apart from its content. */
struct Annotation
{
    QString id;
    QString type; ///< As the file names it, such as "Link" or "Highlight".
    QString subtype;
    QString creator;
    QString date;   ///< Of the last change, as the file gives it.
    QString remark; ///< What it says, as plain text.
    QVector<QPair<QString, QString>> parameters;
    bool isVisible = true;
    Object appearance;
    QVector<Link> links;
};

struct Page
{
    QRectF area; ///< The sheet, in the coordinates of the page.
    /** From back to front; pages share the objects of their templates. */
    QVector<std::shared_ptr<const Objects>> layers;
    QVector<Annotation> annotations; ///< Above the layers.
    QVector<Link> links;             ///< Of the content.
};

struct Attachment
{
    QString id;
    QString name;
    QString file; ///< Its entry in the package; empty if there is none.
};

/** An entry of the outline or a bookmark. */
struct Target
{
    QString title;
    int depth = 0;
    int page = -1; ///< Counted from 0; -1 without a target.
};

struct Document
{
    int pageCount() const { return int(pages.size()); }
    QRectF area(int page) const { return pages.at(page).area; }

    std::shared_ptr<Package> package;
    QString path;                                 ///< The entry with the root of the document.
    QVector<QPair<QString, QString>> information; ///< Names and values.
    QString title;
    Resources resources;
    QVector<Page> pages;
    QVector<Target> outline;
    QVector<Target> bookmarks;
    QVector<Attachment> attachments;
    QMap<QString, int> unsupported; ///< The number of left out parts by kind.
};

/** Reads a document; on failure returns null and sets @p error to one sentence. */
std::shared_ptr<const Document> read(const QString &fileName, QString *error);

} // namespace Ofd
