// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PaintLayer.h"

#include "ofd/DeviceDrawing.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>

namespace Ofd {

namespace {

/** A printer has so many dots that a layer of all would not fit into the memory. */
constexpr qreal mostDotsPerInch = 300;

QRect visibleArea(const QPainter &painter)
{
    QRectF area = deviceRect(painter);
    if (painter.hasClipping())
        area &= painter.deviceTransform().mapRect(painter.clipBoundingRect());
    return area.toAlignedRect();
}

qreal layerScale(const QPainter &painter)
{
    if (painter.paintEngine()->type() == QPaintEngine::Raster)
        return 1;
    return std::min(1.0, mostDotsPerInch / painter.device()->logicalDpiX());
}

} // namespace

void PaintLayer::paint(QPainter &painter, const std::function<void(QPainter &)> &paint)
{
    const QRect area = visibleArea(painter);
    if (area.isEmpty())
        return;
    const qreal scale = layerScale(painter);
    QImage layer((QSizeF(area.size()) * scale).toSize().expandedTo(QSize(1, 1)),
                 QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter inner(&layer);
    inner.setRenderHints(painter.renderHints());
    inner.setTransform(painter.deviceTransform()
                       * QTransform::fromTranslate(-area.left(), -area.top())
                       * QTransform::fromScale(qreal(layer.width()) / area.width(),
                                               qreal(layer.height()) / area.height()));
    paint(inner);
    inner.end();

    const qreal ratio = painter.device()->devicePixelRatioF();
    painter.save();
    // Without it a PDF file would contain a JPEG.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.setWorldTransform(QTransform());
    painter.drawImage(QRectF(QPointF(area.topLeft()) / ratio, QSizeF(area.size()) / ratio), layer);
    painter.restore();
}

} // namespace Ofd
