// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Ink.h"

#include "ofd/AreaPicture.h"
#include "ofd/DensePath.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** In device pixels. Thinner lines show no difference. */
constexpr qreal leastWide = 3;
/** In device pixels, between the border of a line and the exact curve. */
constexpr qreal tolerance = 0.1;
constexpr qreal leastScale = 1e-3;

/** Qt ignores the transform of a texture in PDF files. */
bool mustFlatten(const QPainter &painter, const QBrush &brush)
{
    return brush.style() == Qt::TexturePattern
           && painter.paintEngine()->type() != QPaintEngine::Raster;
}

/** Paints a picture of the brush inside of the path. */
void fillFlattened(QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    const QRect area = visiblePixels(painter, path.boundingRect());
    if (area.isEmpty())
        return;
    AreaPicture picture(painter, area);
    QPainter inner(&picture.image);
    inner.setRenderHints(painter.renderHints());
    inner.setTransform(picture.toImage);
    inner.fillRect(picture.toImage.inverted().mapRect(QRectF(picture.image.rect())), brush);
    inner.end();
    painter.save();
    painter.setClipPath(path, Qt::IntersectClip);
    painter.setTransform(picture.toImage.inverted(), true);
    painter.drawImage(0, 0, picture.image);
    painter.restore();
}

qreal scaleOf(const QPainter &painter)
{
    return std::sqrt(std::abs(painter.deviceTransform().determinant()));
}

/** Computed in the size on the device, as Qt's tolerances are constant. */
QPainterPath outlineOf(const QPainter &painter, const QPainterPath &path, const QPen &pen)
{
    const qreal scale = std::max(scaleOf(painter), leastScale);
    QPen onDevice = pen;
    onDevice.setWidthF(pen.widthF() * scale);
    QPainterPathStroker stroker(onDevice);
    // Qt multiplies it by the width.
    stroker.setCurveThreshold(tolerance / std::max(1.0, onDevice.widthF()));
    const QPainterPath outline =
        stroker.createStroke(QTransform::fromScale(scale, scale).map(path));
    return QTransform::fromScale(1 / scale, 1 / scale).map(outline);
}

/** Whether Qt would compute the borders of the line too coarsely for the size of its pixels. */
bool isWideCurve(const QPainter &painter, const QPainterPath &path, const QPen &pen)
{
    if (painter.paintEngine()->type() != QPaintEngine::Raster
        || pen.widthF() * scaleOf(painter) < leastWide)
        return false;
    for (int i = 0; i < path.elementCount(); ++i) {
        if (path.elementAt(i).isCurveTo())
            return true;
    }
    return false;
}

} // namespace

void Ink::fill(QPainter &painter, const QPainterPath &path) const
{
    if (!extent.isEmpty())
        paintInExtent(painter, [&](const Ink &inside) { inside.fill(painter, path); });
    else if (mustFlatten(painter, brush))
        fillFlattened(painter, path, brush);
    else if (DensePath::isDense(painter, path))
        DensePath::fill(painter, path, brush);
    else
        painter.fillPath(path, brush);
}

void Ink::stroke(QPainter &painter, const QPainterPath &path, QPen pen, bool isOneOfMany) const
{
    pen.setBrush(brush);
    const auto strokeInside = [&](const Ink &inside) {
        inside.stroke(painter, path, pen, isOneOfMany);
    };
    if (!extent.isEmpty())
        paintInExtent(painter, strokeInside);
    else if (mustFlatten(painter, brush))
        fillFlattened(painter, outlineOf(painter, path, pen), brush);
    else if (DensePath::isDense(painter, path)
             || (isOneOfMany && DensePath::isCompact(painter, path)))
        DensePath::stroke(painter, path, pen);
    else if (isWideCurve(painter, path, pen))
        painter.fillPath(outlineOf(painter, path, pen), brush);
    else
        painter.strokePath(path, pen);
}

void Ink::paintInExtent(QPainter &painter, const std::function<void(const Ink &)> &paint) const
{
    painter.save();
    painter.setClipPath(extent, Qt::IntersectClip);
    paint({brush, {}});
    painter.restore();
}

} // namespace Ofd
