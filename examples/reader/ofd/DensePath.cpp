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
#include <array>
#include <cmath>

namespace Ofd {

namespace {

/** In device pixels. Qt paints shorter paths as fast. */
constexpr qreal moderateLength = 20000;
/** Qt paints paths of fewer elements as fast. */
constexpr int fewElements = 8;
/** In device pixels, of the area for each pixel of lines. A mask of a larger area takes longer. */
constexpr qreal compactWidth = 32;
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

/** The visible pixels of a rectangle. */
QRect visibleArea(const QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    QRectF area = toDevice.mapRect(rect).intersected(deviceRect(painter));
    if (painter.hasClipping())
        area = area.intersected(toDevice.mapRect(painter.clipBoundingRect()));
    if (area.isEmpty() || !std::isfinite(area.left() + area.right() + area.top() + area.bottom()))
        return QRect();
    return area.toAlignedRect();
}

/** The area, extended to whole squares of the coarsest kind. */
QRect inSquares(const QRect &area)
{
    const auto before = [](int pixel) { return pixel / coarsestSide * coarsestSide; };
    const QPoint end(before(area.right()) + coarsestSide, before(area.bottom()) + coarsestSide);
    return QRect(QPoint(before(area.left()), before(area.top())), end - QPoint(1, 1));
}

/** The side of squares that suffice, by the total length of the edges for each pixel. */
int sideOfSquares(const QPainterPath &path, const QTransform &toDevice, const QRect &area)
{
    const QRectF shown(area);
    const qreal longest = shown.width() + shown.height();
    qreal length = 0;
    flatten(path, toDevice, area, [&](const QPolygonF &line) {
        for (int i = 1; i < line.size(); ++i) {
            if (shown.intersects(QRectF(line.at(i - 1), line.at(i)).normalized()))
                length += std::min(longest, (line.at(i) - line.at(i - 1)).manhattanLength());
        }
    });
    const qreal crowd = length / shown.width() / shown.height();
    return crowd > veryCrowdedLength ? coarsestSide : crowd > crowdedLength ? coarseSide : 1;
}

QImage insideOf(const QPainter &painter, const QPainterPath &path, const QRect &area)
{
    const QTransform toDevice = painter.deviceTransform();
    const qreal scale = 1.0 / sideOfSquares(path, toDevice, area);
    CoverageMask mask(QRect(area.topLeft() * scale, area.size() * scale));
    flatten(path, toDevice * QTransform::fromScale(scale, scale), mask.area(),
            [&](const QPolygonF &line) { mask.addPolygon(line); });
    mask.settle(path.fillRule());
    return mask.image().scaled(area.size());
}

/** A mask in a colour. */
QImage inked(const QImage &mask, const QColor &colour)
{
    std::array<QRgb, 256> shades{};
    for (int i = 0; i < 256; ++i)
        shades[i] = qPremultiply(
            qRgba(colour.red(), colour.green(), colour.blue(), qRound(colour.alphaF() * i)));
    QImage picture(mask.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < mask.height(); ++y) {
        const uchar *line = mask.constScanLine(y);
        std::transform(line, line + mask.width(), reinterpret_cast<QRgb *>(picture.scanLine(y)),
                       [&](uchar alpha) { return shades[alpha]; });
    }
    return picture;
}

/** @param picture of some pixels of the device. */
void show(QPainter &painter, QImage picture, QPoint topLeft)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    picture.setDevicePixelRatio(ratio);
    painter.save();
    painter.setWorldTransform(QTransform());
    painter.drawImage(QPointF(topLeft) / ratio, picture);
    painter.restore();
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

    show(painter, layer, area.topLeft());
}

void fillAll(QPainter &painter, const QBrush &brush)
{
    const QRectF all(0, 0, painter.device()->width(), painter.device()->height());
    painter.fillRect(painter.transform().inverted().mapRect(all), brush);
}

/** Whether the lines of a path are longer than a length in device pixels. */
bool isLong(const QPainter &painter, const QPainterPath &path, qreal wanted)
{
    if (painter.paintEngine()->type() != QPaintEngine::Raster)
        return false;
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = deviceRect(painter);
    const qreal longest = device.width() + device.height();
    qreal length = 0;
    QPointF previous;
    for (int i = 0; i < path.elementCount() && length < wanted; ++i) {
        const QPointF point = toDevice.map(QPointF(path.elementAt(i)));
        if (!path.elementAt(i).isMoveTo())
            length += std::min(longest, (point - previous).manhattanLength());
        previous = point;
    }
    return length >= wanted;
}

} // namespace

bool DensePath::isDense(const QPainter &painter, const QPainterPath &path)
{
    return isLong(painter, path, moderateLength);
}

bool DensePath::isCompact(const QPainter &painter, const QPainterPath &path)
{
    if (path.elementCount() < fewElements)
        return false;
    const QSizeF size = painter.deviceTransform().mapRect(path.controlPointRect()).size();
    return isLong(painter, path, size.width() * size.height() / compactWidth);
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
    if (pen.brush().style() == Qt::SolidPattern)
        show(painter, inked(mask.image(), pen.color()), area.topLeft());
    else
        paintThrough(painter, area, mask.image(),
                     [&](QPainter &inner) { fillAll(inner, pen.brush()); });
}

void DensePath::paintInside(QPainter &painter, const QPainterPath &path,
                            const std::function<void(QPainter &)> &paint)
{
    const QRect visible = visibleArea(painter, path.controlPointRect());
    if (visible.isEmpty())
        return;
    const QRect area = inSquares(visible);
    paintThrough(painter, area, insideOf(painter, path, area), paint);
}

} // namespace Ofd
