// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ImageMask.h"

#include <QPainter>

namespace Ofd {

namespace {

/** The picture stretched to a size, on a background. */
QImage onBackground(const QImage &picture, QSize size, Qt::GlobalColor background)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(background);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(), size), picture);
    return image;
}

} // namespace

QImage masked(const QImage &picture, const QImage &mask)
{
    const QSize size = picture.size().expandedTo(mask.size());
    // Where the mask itself is transparent, it lets nothing through.
    const QImage grey =
        onBackground(mask, size, Qt::black).convertToFormat(QImage::Format_Grayscale8);
    const QImage alpha(grey.constBits(), size.width(), size.height(), grey.bytesPerLine(),
                       QImage::Format_Alpha8);
    QImage result = onBackground(picture, size, Qt::transparent);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, alpha);
    return result;
}

} // namespace Ofd
