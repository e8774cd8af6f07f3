// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/BookmarkWriter.h"

#include <QColor>

namespace Ofd {

/** A filled or stroked path of an appearance, in millimetres in the coordinates of the page. */
struct DrawnPath
{
    QPainterPath path;
    QColor fill; ///< Invalid for a path that is not filled.
    QPen pen = Qt::NoPen;
};

/** An annotation that is to be added. */
struct AnnotationDraft
{
    QString type;
    QString subtype;
    QString creator;
    QString date;
    QString remark;
    bool isPrinted = true;
    QVector<QPair<QString, QString>> parameters;
    QRectF boundary;
    QVector<DrawnPath> paths;
};

/** What changes in the annotations of one page. They are counted from 0 as the file lists them. */
struct AnnotationChanges
{
    QSet<int> removed;
    QMap<int, QString> remarks; ///< New ones.
    QVector<AnnotationDraft> added;
    QString date; ///< Of the new remarks.

    bool isEmpty() const { return removed.isEmpty() && remarks.isEmpty() && added.isEmpty(); }
};

/**
 * The archive of a document with changed annotations, by the index of the page, and bookmarks.
 * Entries that have nothing to do with them keep their bytes. Throws a Fault if it cannot be made.
 */
QByteArray withChanges(const Document &document, const QMap<int, AnnotationChanges> &annotations,
                       const BookmarkChanges &bookmarks = {});

} // namespace Ofd
