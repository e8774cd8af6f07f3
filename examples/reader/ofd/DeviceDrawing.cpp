// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DeviceDrawing.h"

#include "ofd/Limits.h"

#include <QPainter>

#include <cmath>

namespace Ofd {

namespace {

/**
 * Whether a path is longer than a length. Curves count as the mean of their chord and their control
 * lines, because Qt takes a microsecond to measure each.
 */
bool isLonger(const QPainterPath &path, qreal most)
{
    const auto distance = [&](int from, int to) {
        const QPointF way = QPointF(path.elementAt(to)) - QPointF(path.elementAt(from));
        return std::hypot(way.x(), way.y());
    };
    qreal length = 0;
    for (int i = 1; i < path.elementCount() && length <= most; ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.isLineTo()) {
            length += distance(i - 1, i);
        } else if (element.isCurveTo()) {
            const qreal control = distance(i - 1, i) + distance(i, i + 1) + distance(i + 1, i + 2);
            length += (distance(i - 1, i + 2) + control) / 2;
            i += 2;
        }
    }
    return length > most;
}

} // namespace

QRectF deviceRect(const QPainter &painter)
{
    return QRectF(0, 0, painter.device()->width() * painter.device()->devicePixelRatioF(),
                  painter.device()->height() * painter.device()->devicePixelRatioF());
}

qreal scaleOf(const QPainter &painter)
{
    return std::sqrt(std::abs(painter.deviceTransform().determinant()));
}

bool isOnDevice(const QPainter &painter, const QRectF &rect)
{
    // The rectangle of a straight line has no area and would intersect nothing.
    const QRectF mapped = painter.deviceTransform().mapRect(rect).adjusted(-1, -1, 1, 1);
    return mapped.intersects(deviceRect(painter));
}

void clipTo(QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    const QTransform toWorld = painter.worldTransform();
    const bool isUpright = toDevice.type() <= QTransform::TxScale;
    if (!isUpright && (!qFuzzyIsNull(toDevice.m11()) || !qFuzzyIsNull(toDevice.m22()))) {
        painter.setClipRect(rect, Qt::IntersectClip);
        return;
    }
    const QRectF pixels((toDevice.mapRect(rect) & deviceRect(painter)).toAlignedRect());
    painter.setWorldTransform(QTransform());
    painter.setClipRect(painter.deviceTransform().inverted().mapRect(pixels), Qt::IntersectClip);
    painter.setWorldTransform(toWorld);
}

QPen visiblePen(const QPainter &painter, const Style &style, const QPainterPath &path)
{
    QPen pen = style.pen();
    const qreal scale = scaleOf(painter);
    qreal period = 0;
    for (const qreal length : style.dashes.value_or(QVector<qreal>()))
        period += length;
    if (period > 0 && isLonger(path, period * Limits::dashesPerPath))
        pen.setStyle(Qt::SolidLine);
    else if (scale > 0 && pen.widthF() * scale < leastLineWidth && period <= 0)
        pen.setWidthF(leastLineWidth / scale);
    return pen;
}

QSizeF sizeOf(const QTransform &transform)
{
    return QSizeF(std::hypot(transform.m11(), transform.m12()),
                  std::hypot(transform.m21(), transform.m22()));
}

} // namespace Ofd
