// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ImageStore.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace Ofd {

namespace {

constexpr int mostKilobytes = 256 << 10;
constexpr int mostHalvings = 8;

int kilobytesOf(const QImage &image)
{
    return 1 + int(image.sizeInBytes() >> 10);
}

bool hasSaneSize(const QSize &size)
{
    return size.isValid() && qint64(size.width()) * size.height() <= Limits::imagePixels;
}

QImage decode(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // The suffix of the file may be wrong.
    reader.setDecideFormatFromContent(true);
    return hasSaneSize(reader.size()) ? reader.read() : QImage();
}

} // namespace

ImageStore::ImageStore(const Document &document)
    : m_document(document)
    , m_cache(mostKilobytes)
{
}

bool ImageStore::isReadable(const QByteArray &bytes)
{
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    return reader.canRead() && hasSaneSize(reader.size());
}

QImage ImageStore::image(const QString &resource, QSizeF target)
{
    const QImage whole = decoded(resource);
    int times = 0;
    // Smooth scaling uses four neighbours only; scaling below a half would lose thin lines.
    while (times < mostHalvings && whole.width() >> (times + 1) > target.width()
           && whole.height() >> (times + 1) > target.height())
        ++times;
    return times > 0 ? halved(resource, times) : whole;
}

QImage ImageStore::decoded(const QString &resource)
{
    if (const QImage *known = m_cache.object(resource))
        return *known;
    QImage image;
    const QString file = m_document.resources.images.value(resource);
    try {
        if (!file.isEmpty())
            image = decode(m_document.package->read(file));
    } catch (const Fault &) {
        // Not reported here: a damaged picture was reported on opening. Nothing is painted.
    }
    m_cache.insert(resource, new QImage(image), kilobytesOf(image));
    return image;
}

QImage ImageStore::halved(const QString &resource, int times)
{
    const QString key = QStringLiteral("%1/%2").arg(resource).arg(times);
    if (const QImage *known = m_cache.object(key))
        return *known;
    const QImage whole = decoded(resource);
    const QSize size(std::max(1, whole.width() >> times), std::max(1, whole.height() >> times));
    QImage image = whole.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    m_cache.insert(key, new QImage(image), kilobytesOf(image));
    return image;
}

} // namespace Ofd
