// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DensePath.h"

#include "ofd/CoverageMask.h"
#include "ofd/Flattening.h"
#include "ofd/StrokeMask.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** In device pixels. Qt paints shorter paths as fast. */
constexpr qreal moderateLength = 20000;
/** Length of edges for each pixel of the area. Above this, single pixels show no detail. */
constexpr qreal crowdedLength = 16;
// Sides of the squares, in pixels, that a crowded area is computed in; the second for one that is
// very crowded.
constexpr int coarseSide = 4;
constexpr int coarsestSide = 8;
constexpr qreal veryCrowdedLength = 128;

QRectF deviceRect(const QPainter &painter)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    return QRectF(0, 0, painter.device()->width() * ratio, painter.device()->height() * ratio);
}

/** The visible pixels of a rectangle, extended to whole coarse squares. */
QRect visibleArea(const QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    QRectF area = toDevice.mapRect(rect).intersected(deviceRect(painter));
    if (painter.hasClipping())
        area = area.intersected(toDevice.mapRect(painter.clipBoundingRect()));
    if (area.isEmpty() || !std::isfinite(area.left() + area.right() + area.top() + area.bottom()))
        return QRect();
    const QPoint first(int(std::floor(area.left() / coarsestSide)),
                       int(std::floor(area.top() / coarsestSide)));
    const QPoint end(int(std::ceil(area.right() / coarsestSide)),
                     int(std::ceil(area.bottom() / coarsestSide)));
    return QRect(first * coarsestSide, end * coarsestSide - QPoint(1, 1));
}

/** The side of squares that suffice, by the total length of the edges for each pixel. */
int sideOfSquares(const QList<QPolygonF> &lines, const QRect &area)
{
    const QRectF shown(area);
    const qreal longest = shown.width() + shown.height();
    qreal length = 0;
    for (const QPolygonF &line : lines) {
        for (int i = 1; i < line.size(); ++i) {
            if (shown.intersects(QRectF(line.at(i - 1), line.at(i)).normalized()))
                length += std::min(longest, (line.at(i) - line.at(i - 1)).manhattanLength());
        }
    }
    const qreal crowd = length / shown.width() / shown.height();
    return crowd > veryCrowdedLength ? coarsestSide : crowd > crowdedLength ? coarseSide : 1;
}

QImage insideOf(const QPainter &painter, const QPainterPath &path, const QRect &area)
{
    const QList<QPolygonF> lines = flattened(path, painter.deviceTransform(), area);
    const qreal scale = 1.0 / sideOfSquares(lines, area);
    CoverageMask mask(QRect(area.topLeft() * scale, area.size() * scale));
    for (const QPolygonF &line : lines)
        mask.addPolygon(QTransform::fromScale(scale, scale).map(line));
    mask.settle(path.fillRule());
    return mask.image().scaled(area.size());
}

/** Paints an area through a mask of the same size. */
void paintThrough(QPainter &painter, const QRect &area, const QImage &mask,
                  const std::function<void(QPainter &)> &paint)
{
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter inner(&layer);
    inner.setRenderHints(painter.renderHints());
    inner.setTransform(painter.deviceTransform()
                       * QTransform::fromTranslate(-area.left(), -area.top()));
    inner.save();
    paint(inner);
    inner.restore();
    inner.resetTransform();
    inner.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    inner.drawImage(0, 0, mask);
    inner.end();

    const qreal ratio = painter.device()->devicePixelRatioF();
    layer.setDevicePixelRatio(ratio);
    painter.save();
    painter.setWorldTransform(QTransform());
    painter.drawImage(QPointF(area.topLeft()) / ratio, layer);
    painter.restore();
}

void fillAll(QPainter &painter, const QBrush &brush)
{
    const QRectF all(0, 0, painter.device()->width(), painter.device()->height());
    painter.fillRect(painter.transform().inverted().mapRect(all), brush);
}

} // namespace

bool DensePath::isDense(const QPainter &painter, const QPainterPath &path)
{
    if (painter.paintEngine()->type() != QPaintEngine::Raster)
        return false;
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = deviceRect(painter);
    const qreal longest = device.width() + device.height();
    qreal length = 0;
    QPointF previous;
    for (int i = 0; i < path.elementCount() && length < moderateLength; ++i) {
        const QPointF point = toDevice.map(QPointF(path.elementAt(i)));
        if (!path.elementAt(i).isMoveTo())
            length += std::min(longest, (point - previous).manhattanLength());
        previous = point;
    }
    return length >= moderateLength;
}

void DensePath::fill(QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    paintInside(painter, path, [&](QPainter &inner) { fillAll(inner, brush); });
}

void DensePath::stroke(QPainter &painter, const QPainterPath &path, const QPen &pen)
{
    const qreal margin = pen.widthF() * std::max(1.0, pen.miterLimit());
    const QRectF bounds = path.controlPointRect().adjusted(-margin, -margin, margin, margin);
    const QRect area = visibleArea(painter, bounds);
    if (area.isEmpty())
        return;
    StrokeMask mask(area, painter.deviceTransform(), pen);
    mask.add(path);
    paintThrough(painter, area, mask.image(),
                 [&](QPainter &inner) { fillAll(inner, pen.brush()); });
}

void DensePath::paintInside(QPainter &painter, const QPainterPath &path,
                            const std::function<void(QPainter &)> &paint)
{
    const QRect area = visibleArea(painter, path.controlPointRect());
    if (!area.isEmpty())
        paintThrough(painter, area, insideOf(painter, path, area), paint);
}

} // namespace Ofd
