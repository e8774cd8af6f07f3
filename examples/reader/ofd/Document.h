// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Package.h"
#include "ofd/PageStore.h"
#include "ofd/Table.h"

#include <QPair>
#include <QSet>
#include <QStringList>

#include <mutex>

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
    Table<Font> fonts;
    Table<QString> images; ///< Their entries in the package.
    QHash<QString, std::shared_ptr<const Objects>> composites;
    QSet<QString> namedComposites; ///< Those of pages, too; used while a page is read.
};

struct Document;

/** The picture of a seal on a page, or the part of it that a seam over several pages has there. */
struct Stamp
{
    int signature = 0; ///< Its index among the signatures.
    Object object;     ///< Without content if the picture is a drawing.
    std::shared_ptr<const Document> drawing;

    /** Where it is seen on the page. */
    QRectF area() const
    {
        QRectF area = object.boundary;
        for (const Clip &clip : object.clips)
            area &= clip.path.boundingRect();
        return area;
    }
};

struct SignatureList
{
    QString file;        ///< The entry with the list itself.
    QStringList entries; ///< The descriptions of the signatures.
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
    Destination destination;
};

/** A document, whose pages are read when they are asked for. Threads may share it. */
struct Document
{
    int pageCount() const { return pages->count(); }
    QRectF area(int page) const { return pages->area(page); }
    std::shared_ptr<const Page> page(int index) const { return pages->page(index); }
    /** The objects of a composite on that page; null if there is none. */
    std::shared_ptr<const Objects> composite(const QString &id, const Page &page) const
    {
        return page.composites.value(id, resources.composites.value(id));
    }

    /** Counts a file that painting cannot show as a left out part of that kind, but only once. */
    void leaveOut(const QString &kind, const QString &file) const
    {
        if (!leftOutFiles.insert(file, kind))
            return;
        unsupported.add(kind, 1);
        pages->tell({});
    }

    std::shared_ptr<Package> package;
    QString path;                                 ///< The entry with the root of the document.
    QVector<QPair<QString, QString>> information; ///< Names and values.
    QString title;
    QStringList bodies; ///< The names of all documents in the package, of which this is one.
    int body = 0;       ///< Which one it is.
    Resources resources;
    std::unique_ptr<PageStore> pages;
    QVector<Target> outline;
    QVector<Target> bookmarks;
    QVector<Attachment> attachments;
    SignatureList signatures;
    QHash<int, QVector<Stamp>> stamps; ///< By page, above everything else.
    /** The number of left out parts by kind, in what was read or painted so far. */
    mutable Table<int> unsupported;
    mutable Table<QString> leftOutFiles; ///< For leaveOut().
    /** Held while painting: Qt keeps what it computes inside of paths and brushes, unprotected. */
    mutable std::mutex painting;
};

/** In place of the index of a document: the first one that is not broken. */
constexpr int firstReadable = -1;

/**
 * Reads one of the documents of a file; on failure returns null and sets @p error to one sentence.
 *
 * The pages are read later, and one that cannot be read costs itself only.
 */
std::shared_ptr<const Document> read(const QString &fileName, QString *error,
                                     int body = firstReadable);
/** The same for one that lies inside of another document; its own signatures do not matter. */
std::shared_ptr<const Document> read(const QByteArray &archive, QString *error);

} // namespace Ofd
