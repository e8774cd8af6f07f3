// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Shading.h"

#include "ofd/Limits.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** In each direction; edges inside of a shading become smooth by it. */
constexpr qreal usualDensity = 2;
/** The brush repeats its picture, so smooth scaling mixes opposite borders. */
constexpr int margin = 2;

} // namespace

QRect visiblePixels(const QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QRectF device(0, 0, painter.device()->width() * ratio,
                        painter.device()->height() * ratio);
    // The rectangle of a straight line has no area and would intersect nothing.
    QRectF area = toDevice.mapRect(rect).adjusted(-1, -1, 1, 1).intersected(device);
    if (painter.hasClipping())
        area = area.intersected(toDevice.mapRect(painter.clipBoundingRect()));
    if (area.isEmpty() || !std::isfinite(area.left() + area.right() + area.top() + area.bottom()))
        return QRect();
    return area.toAlignedRect().adjusted(-margin, -margin, margin, margin);
}

QImage pictureFor(const QRect &area, qreal load)
{
    const qreal pixels = Limits::shadingPixels / std::max(1.0, load);
    const qreal density =
        std::min(usualDensity, std::sqrt(pixels / (qreal(area.width()) * area.height())));
    const QSize size = (QSizeF(area.size()) * density).toSize();
    QImage picture(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

QTransform toPicture(const QPainter &painter, const QRect &area, const QImage &picture)
{
    return painter.deviceTransform() * QTransform::fromTranslate(-area.left(), -area.top())
           * QTransform::fromScale(qreal(picture.width()) / area.width(),
                                   qreal(picture.height()) / area.height());
}

QBrush brushOver(const QPainter &painter, const QRect &area, const QImage &picture)
{
    QBrush brush(picture);
    brush.setTransform(toPicture(painter, area, picture).inverted());
    return brush;
}

Ink SampledShading::ink(const QPainter &painter, const QRectF &bounds) const
{
    const QRect area = visiblePixels(painter, bounds);
    if (area.isEmpty() || !painter.deviceTransform().isInvertible())
        return {};
    const QTransform toArea =
        painter.deviceTransform() * QTransform::fromTranslate(-area.left(), -area.top());
    QImage picture = pictureFor(area, load(toArea, QRectF(QPointF(), area.size())));
    draw(picture, toPicture(painter, area, picture));
    return {brushOver(painter, area, picture), {}};
}

qreal SampledShading::load(const QTransform &, const QRectF &) const
{
    return 1;
}

} // namespace Ofd
