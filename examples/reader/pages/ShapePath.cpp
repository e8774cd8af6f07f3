// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/ShapePath.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>

namespace {

constexpr qreal waveLength = 8;
constexpr qreal waveHeight = 3;
constexpr qreal arrowLength = 18;
constexpr qreal arrowAngle = 25;
constexpr qreal cloudBow = 26;
constexpr int polygonCorners = 6;

QPainterPath linePath(QPointF from, QPointF to)
{
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

QPainterPath arrowPath(QPointF from, QPointF to)
{
    QPainterPath path = linePath(from, to);
    for (const qreal turn : {arrowAngle, -arrowAngle}) {
        QLineF barb(to, from);
        barb.setLength(arrowLength);
        barb.setAngle(barb.angle() + turn);
        path.moveTo(to);
        path.lineTo(barb.p2());
    }
    return path;
}

QPainterPath polygonPath(const QRectF &rect)
{
    QPolygonF corners;
    for (int i = 0; i < polygonCorners; ++i) {
        const qreal angle = 2 * M_PI * i / polygonCorners;
        corners << rect.center()
                       + QPointF(rect.width() / 2 * qCos(angle), rect.height() / 2 * qSin(angle));
    }
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath polylinePath(const QRectF &rect)
{
    QPolygonF corners;
    for (int i = 0; i <= 4; ++i) {
        const qreal x = rect.left() + rect.width() * i / 4;
        corners << QPointF(x, i % 2 ? rect.top() : rect.bottom());
    }
    QPainterPath path;
    path.addPolygon(corners);
    return path;
}

/** One side of a cloud: arcs to the left of the line from one corner to the next. */
void addBows(QPainterPath &path, QPointF from, QPointF to)
{
    const QLineF side(from, to);
    const int count = std::max(1, qRound(side.length() / cloudBow));
    const QLineF normal = side.normalVector().unitVector();
    const QPointF out(normal.dx() * cloudBow * 0.6, normal.dy() * cloudBow * 0.6);
    for (int i = 0; i < count; ++i) {
        const QPointF end = side.pointAt(qreal(i + 1) / count);
        path.cubicTo(side.pointAt((i + 0.1) / count) + out, side.pointAt((i + 0.9) / count) + out,
                     end);
    }
}

QPainterPath cloudPath(const QRectF &rect)
{
    QPainterPath path(rect.topLeft());
    addBows(path, rect.topLeft(), rect.topRight());
    addBows(path, rect.topRight(), rect.bottomRight());
    addBows(path, rect.bottomRight(), rect.bottomLeft());
    addBows(path, rect.bottomLeft(), rect.topLeft());
    return path;
}

} // namespace

QPainterPath wavePath(qreal left, qreal right, qreal y)
{
    QPainterPath path(QPointF(left, y));
    for (qreal x = left; x < right; x += waveLength) {
        path.quadTo(x + waveLength / 4, y - waveHeight, x + waveLength / 2, y);
        path.quadTo(x + 3 * waveLength / 4, y + waveHeight, x + waveLength, y);
    }
    return path;
}

QPainterPath shapePath(const Mark &mark)
{
    if (mark.points.size() < 2)
        return QPainterPath();
    const QPointF from = mark.points.first();
    const QPointF to = mark.points.last();
    const QRectF rect = mark.rect();
    QPainterPath path;
    switch (mark.kind) {
    case MarkKind::StraightLine:
        return linePath(from, to);
    case MarkKind::Arrow:
        return arrowPath(from, to);
    case MarkKind::Rectangle:
        path.addRect(rect);
        return path;
    case MarkKind::Ellipse:
        path.addEllipse(rect);
        return path;
    case MarkKind::Polygon:
        return polygonPath(rect);
    case MarkKind::Polyline:
        return polylinePath(rect);
    case MarkKind::Cloud:
        return cloudPath(rect);
    case MarkKind::Ink:
        path.addPolygon(mark.points);
        return path;
    default:
        return path;
    }
}
