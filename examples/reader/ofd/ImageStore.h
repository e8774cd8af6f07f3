// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QCache>
#include <QImage>

namespace Ofd {

/** The pictures of a document, decoded when they are painted and kept within bounds. */
class ImageStore
{
public:
    explicit ImageStore(const Document &document);

    /** The picture, halved as often as leaves it larger than that; null if it cannot be shown. */
    QImage image(const QString &resource, QSizeF target);

    /** Whether these bytes are a picture that can be shown. */
    static bool isReadable(const QByteArray &bytes);

private:
    QImage decoded(const QString &resource);
    QImage halved(const QString &resource, int times);

    const Document &m_document;
    QCache<QString, QImage> m_cache; ///< Costs are kilobytes.
};

} // namespace Ofd
