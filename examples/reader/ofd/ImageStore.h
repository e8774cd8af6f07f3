// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QCache>
#include <QImage>

namespace Ofd {

/** The pictures of a document, decoded on painting and kept in a cache of limited size. */
class ImageStore
{
public:
    explicit ImageStore(const Document &document);

    /** The picture, halved while it stays larger than @p target; null if it cannot be decoded. */
    QImage image(const QString &resource, QSizeF target);

private:
    QImage decoded(const QString &resource);
    QImage halved(const QString &resource, int times);

    const Document &m_document;
    QCache<QString, QImage> m_cache; ///< Costs are in kilobytes.
};

} // namespace Ofd
