// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/AreaPicture.h"

#include "ofd/DeviceDrawing.h"
#include "ofd/Limits.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** In each direction; edges inside of a picture become smooth by it. */
constexpr qreal screenDensity = 2;
/** In dots per inch. The pixels of a PDF file or printer are much smaller than can be seen. */
constexpr qreal paperDensity = 400;
/** The brush repeats its picture, so smooth scaling mixes opposite borders. */
constexpr int margin = 2;

} // namespace

qreal pictureDensity(const QPainter &painter)
{
    if (painter.paintEngine()->type() == QPaintEngine::Raster)
        return screenDensity;
    return std::min(screenDensity, paperDensity / std::max(1, painter.device()->logicalDpiX()));
}

QRect visiblePixels(const QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    // The rectangle of a straight line has no area and would intersect nothing.
    QRectF area = toDevice.mapRect(rect).adjusted(-1, -1, 1, 1) & deviceRect(painter);
    if (painter.hasClipping())
        area = area.intersected(toDevice.mapRect(painter.clipBoundingRect()));
    if (area.isEmpty() || !std::isfinite(area.left() + area.right() + area.top() + area.bottom()))
        return QRect();
    return area.toAlignedRect().adjusted(-margin, -margin, margin, margin);
}

AreaPicture::AreaPicture(const QPainter &painter, const QRect &area, qreal load)
{
    const qreal pixels = Limits::shadingPixels / std::max(1.0, load);
    const qreal density = std::min(pictureDensity(painter),
                                   std::sqrt(pixels / (qreal(area.width()) * area.height())));
    const QSize size = (QSizeF(area.size()) * density).toSize().expandedTo(QSize(1, 1));
    image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    toImage = painter.deviceTransform() * QTransform::fromTranslate(-area.left(), -area.top())
              * QTransform::fromScale(qreal(size.width()) / area.width(),
                                      qreal(size.height()) / area.height());
}

QBrush AreaPicture::brush() const
{
    QBrush brush(image);
    brush.setTransform(toImage.inverted());
    return brush;
}

} // namespace Ofd
