// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Gradient.h"

#include <QImage>
#include <QLineF>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

constexpr int rampSize = 1024;

/** Stops that Qt accepts: it forgets all but the last one of a position. */
QGradientStops distinct(const QGradientStops &stops)
{
    constexpr qreal step = 1e-7;
    QGradientStops moved;
    for (int i = 0; i < stops.size(); ++i)
        moved.append(
            {stops.at(i).first * (1 - step * stops.size()) + step * i, stops.at(i).second});
    return moved;
}

QBrush brushOf(QGradient &gradient, const Course &course)
{
    gradient.setSpread(course.spread);
    gradient.setStops(distinct(course.stops));
    return gradient;
}

QRgb between(const QColor &from, const QColor &to, qreal share)
{
    const QRgb a = qPremultiply(from.rgba());
    const QRgb b = qPremultiply(to.rgba());
    const auto mixed = [&](int one, int other) { return qRound(one + (other - one) * share); };
    return qRgba(mixed(qRed(a), qRed(b)), mixed(qGreen(a), qGreen(b)), mixed(qBlue(a), qBlue(b)),
                 mixed(qAlpha(a), qAlpha(b)));
}

QVector<QRgb> rampOf(const QGradientStops &stops)
{
    QVector<QRgb> ramp;
    int next = 0;
    for (int i = 0; i < rampSize; ++i) {
        const qreal position = qreal(i) / (rampSize - 1);
        while (next < stops.size() - 1 && stops.at(next).first < position)
            ++next;
        const QGradientStop &before = stops.at(std::max(0, next - 1));
        const QGradientStop &after = stops.at(next);
        const qreal length = after.first - before.first;
        const qreal share = length > 0 ? (position - before.first) / length : 1;
        ramp.append(between(before.second, after.second, std::clamp(share, 0.0, 1.0)));
    }
    return ramp;
}

/** From the position on the axis to that in one repetition, from 0 to 1. */
qreal inUnit(qreal position, const Course &course)
{
    if (course.spread == QGradient::PadSpread)
        return std::clamp(position, 0.0, 1.0);
    const qreal times = position / course.unit;
    const qreal rest = times - std::floor(times);
    const bool isOdd = std::fmod(std::floor(times), 2) != 0;
    return course.spread == QGradient::ReflectSpread && isOdd ? 1 - rest : rest;
}

/** The whole area, with a border that no rounding reaches. */
QRectF widened(const QRectF &rect)
{
    const qreal more = 1 + rect.width() + rect.height();
    return rect.adjusted(-more, -more, more, more);
}

QPainterPath ellipse(const Circle &circle, const QTransform &transform)
{
    QPainterPath path;
    path.addEllipse(circle.centre, circle.radius, circle.radius);
    return transform.map(path);
}

} // namespace

AxialGradient::AxialGradient(QPointF start, QPointF end, const Course &course)
    : m_goesBeforeStart(course.goesBeforeStart)
    , m_goesBeyondEnd(course.goesBeyondEnd)
{
    const QPointF axis = end - start;
    const bool isPadded = course.spread == QGradient::PadSpread;
    QLinearGradient gradient(start, isPadded ? end : start + axis * course.unit);
    m_brush = brushOf(gradient, course);
    m_fromAxis = QTransform(axis.x(), axis.y(), -axis.y(), axis.x(), start.x(), start.y());
}

Ink AxialGradient::ink(const QPainter &, const QRectF &bounds) const
{
    // An axis of almost no length cannot be inverted; a gradient on it ends everywhere else.
    if (!m_fromAxis.isInvertible())
        return {};
    QRectF shown = m_fromAxis.inverted().mapRect(widened(bounds));
    const qreal first = m_goesBeforeStart ? shown.left() : std::max(0.0, shown.left());
    const qreal last = m_goesBeyondEnd ? shown.right() : std::min(1.0, shown.right());
    if (first >= last)
        return {};
    if (first == shown.left() && last == shown.right())
        return {m_brush, {}};
    shown.setLeft(first);
    shown.setRight(last);
    QPainterPath band;
    band.addPolygon(m_fromAxis.map(QPolygonF(shown)));
    band.closeSubpath();
    return {m_brush, band};
}

RadialGradient::RadialGradient(Circle start, Circle end, const QTransform &transform,
                               const Course &course)
    : m_start(start)
    , m_end(end)
    , m_transform(transform)
    , m_course(course)
    , m_ramp(rampOf(course.stops))
{
}

Ink RadialGradient::ink(const QPainter &painter, const QRectF &bounds) const
{
    // Qt's gradient is the same only if the start lies inside of the end.
    const qreal distance = QLineF(m_start.centre, m_end.centre).length();
    return distance + m_start.radius < m_end.radius ? inkOfNested(bounds)
                                                    : SampledShading::ink(painter, bounds);
}

Ink RadialGradient::inkOfNested(const QRectF &bounds) const
{
    const qreal unit = m_course.spread == QGradient::PadSpread ? 1 : m_course.unit;
    QRadialGradient gradient(m_start.centre + (m_end.centre - m_start.centre) * unit,
                             m_start.radius + (m_end.radius - m_start.radius) * unit,
                             m_start.centre, m_start.radius);
    Ink ink{brushOf(gradient, m_course), {}};
    ink.brush.setTransform(m_transform);
    if (m_course.goesBeforeStart && m_course.goesBeyondEnd)
        return ink;
    if (m_course.goesBeyondEnd)
        ink.extent.addRect(widened(bounds));
    else
        ink.extent = ellipse(m_end, m_transform);
    // With the rule of even and odd, a path in a path is a hole.
    if (!m_course.goesBeforeStart)
        ink.extent.addPath(ellipse(m_start, m_transform));
    return ink;
}

void RadialGradient::draw(QImage &image, const QTransform &toImage) const
{
    const QTransform toCircles = (m_transform * toImage).inverted();
    for (int y = 0; y < image.height(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = colourAt(toCircles.map(QPointF(x + 0.5, y + 0.5)));
    }
}

/** Of the two circles of the row that pass through the point, the one nearer to the end is seen. */
QRgb RadialGradient::colourAt(QPointF point) const
{
    const QPointF course = m_end.centre - m_start.centre;
    const QPointF offset = point - m_start.centre;
    const qreal growth = m_end.radius - m_start.radius;
    const qreal a = QPointF::dotProduct(course, course) - growth * growth;
    const qreal b = QPointF::dotProduct(offset, course) + m_start.radius * growth;
    const qreal c = QPointF::dotProduct(offset, offset) - m_start.radius * m_start.radius;
    if (qFuzzyIsNull(a))
        return isVisibleAt(c / (2 * b)) ? colourOf(c / (2 * b)) : 0;
    const qreal discriminant = b * b - a * c;
    if (discriminant < 0)
        return 0;
    const qreal one = (b + std::sqrt(discriminant)) / a;
    const qreal other = (b - std::sqrt(discriminant)) / a;
    for (const qreal position : {std::max(one, other), std::min(one, other)}) {
        if (isVisibleAt(position))
            return colourOf(position);
    }
    return 0;
}

bool RadialGradient::isVisibleAt(qreal position) const
{
    if (!std::isfinite(position))
        return false;
    const bool isAfterStart = m_course.goesBeforeStart || position >= 0;
    const bool isBeforeEnd = m_course.goesBeyondEnd || position <= 1;
    return isAfterStart && isBeforeEnd
           && m_start.radius + (m_end.radius - m_start.radius) * position >= 0;
}

QRgb RadialGradient::colourOf(qreal position) const
{
    return m_ramp.at(qRound(inUnit(position, m_course) * (m_ramp.size() - 1)));
}

} // namespace Ofd
