// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/DocumentRoot.h"

#include <QSet>

namespace Ofd {

/** What changes in the bookmarks of a document. They are counted from 0 as the file lists them. */
struct BookmarkChanges
{
    QSet<int> removed;
    QVector<QPair<QString, int>> added; ///< Names, and the indexes of pages.

    bool isEmpty() const { return removed.isEmpty() && added.isEmpty(); }
};

/** The file with the root of a document, with changed bookmarks and all else as it is. */
QByteArray withBookmarks(const QByteArray &file, const DocumentRoot &root,
                         const BookmarkChanges &changes);

} // namespace Ofd
