// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ImageStore.h"

#include "ofd/Fault.h"
#include "ofd/Picture.h"
#include "ofd/Wording.h"

#include <QPainter>

#include <algorithm>

namespace Ofd {

namespace {

constexpr int mostKilobytes = 256 << 10;
constexpr int mostHalvings = 8;

int kilobytesOf(const QImage &image)
{
    return 1 + int(image.sizeInBytes() >> 10);
}

/** Scaled in stripes: as a whole a bilevel picture would first take 32 times its memory. */
QImage halvedBy(const QImage &whole, int times)
{
    constexpr int stripePixels = 4 << 20;
    const int step = std::max(1, stripePixels / std::max(1, whole.width()) >> times) << times;
    const int width = std::max(1, whole.width() >> times);
    QImage image(width, std::max(1, whole.height() >> times),
                 whole.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                         : QImage::Format_RGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int y = 0; y < whole.height(); y += step) {
        const int height = std::min(step, whole.height() - y);
        const QImage stripe = whole.copy(0, y, whole.width(), height);
        painter.drawImage(0, y >> times,
                          stripe.scaled(width, std::max(1, height >> times), Qt::IgnoreAspectRatio,
                                        Qt::SmoothTransformation));
    }
    return image;
}

} // namespace

ImageStore::ImageStore(const Document &document)
    : m_document(document)
    , m_cache(mostKilobytes)
{
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
    QString fault = Wording::tr("图像");
    try {
        if (!file.isEmpty()) {
            const QByteArray bytes = m_document.package->read(file);
            image = Picture::decoded(bytes);
            if (image.isNull() && !Picture::faultOf(bytes).isEmpty())
                fault = Picture::faultOf(bytes);
        }
    } catch (const Fault &) {
        // Nothing is painted.
    }
    if (image.isNull() && !file.isEmpty())
        m_document.leaveOut(fault, file);
    m_cache.insert(resource, new QImage(image), kilobytesOf(image));
    return image;
}

QImage ImageStore::halved(const QString &resource, int times)
{
    const QString key = QStringLiteral("%1/%2").arg(resource).arg(times);
    if (const QImage *known = m_cache.object(key))
        return *known;
    const QImage whole = decoded(resource);
    const QImage image = halvedBy(whole, times);
    m_cache.insert(key, new QImage(image), kilobytesOf(image));
    return image;
}

} // namespace Ofd
