// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Ink.h"

#include "ofd/AreaPicture.h"
#include "ofd/DensePath.h"

#include <QPaintEngine>
#include <QPainter>

namespace Ofd {

namespace {

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

QPainterPath outlineOf(const QPainterPath &path, const QPen &pen)
{
    QPainterPathStroker stroker(pen);
    // The curves are computed in millimetres.
    stroker.setCurveThreshold(0.01);
    return stroker.createStroke(path);
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

void Ink::stroke(QPainter &painter, const QPainterPath &path, QPen pen) const
{
    pen.setBrush(brush);
    if (!extent.isEmpty())
        paintInExtent(painter, [&](const Ink &inside) { inside.stroke(painter, path, pen); });
    else if (mustFlatten(painter, brush))
        fillFlattened(painter, outlineOf(path, pen), brush);
    else if (DensePath::isDense(painter, path))
        DensePath::stroke(painter, path, pen);
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
