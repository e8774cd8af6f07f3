// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/OfdSaving.h"

#include "document/Document.h"
#include "document/MarkAnnotation.h"
#include "ofd/Fault.h"
#include "pages/MarkRecorder.h"

#include <QCoreApplication>

#include <utility>

namespace {

using Changes = QMap<int, Ofd::AnnotationChanges>;

bool isNew(const Mark &mark)
{
    return mark.origins.isEmpty() || (mark.isEdited && mark.kind != MarkKind::Annotation);
}

/** Removes what the file has and the document has not. */
void addRemovals(Changes &changes, const Document &document)
{
    for (const Mark &mark : document.file().marks) {
        for (const auto &origin : mark.origins)
            changes[origin.first].removed.insert(origin.second);
    }
    for (const Mark &mark : document.marks()) {
        if (isNew(mark))
            continue;
        for (const auto &origin : mark.origins) {
            Ofd::AnnotationChanges &page = changes[origin.first];
            page.removed.remove(origin.second);
            if (!mark.isEdited)
                continue;
            page.remarks.insert(origin.second, mark.text);
            page.date = mark.date.toString(Qt::ISODate);
        }
    }
}

int insertedPages(const Document &document)
{
    int count = 0;
    for (int page = 0; page < document.pageCount(); ++page)
        count += document.contentOf(page) ? 0 : 1;
    return count;
}

void addMark(Changes &changes, const Document &document, const Mark &mark)
{
    const Ofd::AnnotationDraft draft = MarkAnnotation::draftOf(mark);
    const QVector<Ofd::DrawnPath> paths = recordedMark(mark);
    const int one = mark.page == everyPage ? -1 : document.filePageOf(mark.page);
    const int filePages = document.pageCount() - insertedPages(document);
    for (int page = 0; page < filePages; ++page) {
        if (mark.page != everyPage && page != one)
            continue;
        Ofd::AnnotationDraft onPage = draft;
        MarkAnnotation::setAppearance(onPage, paths, document.file().cornerOf(page));
        changes[page].added.append(onPage);
    }
}

Ofd::BookmarkChanges bookmarkChanges(const Document &document)
{
    Ofd::BookmarkChanges changes;
    for (int i = 0; i < document.file().bookmarks.size(); ++i)
        changes.removed.insert(i);
    for (const NamedPlace &bookmark : document.bookmarks()) {
        changes.removed.remove(bookmark.origin);
        const int page = bookmark.origin < 0 ? document.filePageOf(bookmark.place.page) : -1;
        if (page >= 0)
            changes.added.append({bookmark.name, page});
    }
    return changes;
}

bool isEmpty(const Changes &changes)
{
    for (const Ofd::AnnotationChanges &page : changes) {
        if (!page.isEmpty())
            return false;
    }
    return true;
}

} // namespace

QByteArray OfdSaving::archiveOf(const Document &document, QString *error)
{
    error->clear();
    Changes changes;
    addRemovals(changes, document);
    for (const Mark &mark : document.marks()) {
        if (isNew(mark))
            addMark(changes, document, mark);
    }
    const Ofd::BookmarkChanges bookmarks = bookmarkChanges(document);
    if (isEmpty(changes) && bookmarks.isEmpty())
        return document.file().archive;
    try {
        return Ofd::withChanges(*document.file().document, changes, bookmarks);
    } catch (const Ofd::Fault &fault) {
        *error = fault.message;
        return QByteArray();
    }
}

bool OfdSaving::changesBookmarks(const Document &document)
{
    return !document.isGenerated() && !bookmarkChanges(document).isEmpty();
}

QString OfdSaving::lossOf(const Document &document)
{
    const int pages = insertedPages(document);
    if (pages > 0)
        return QCoreApplication::translate("OfdSaving",
                                           "OFD 文件中不含插入的 %1 页及其批注；另存为 PDF 可保留")
            .arg(pages);
    return QString();
}
