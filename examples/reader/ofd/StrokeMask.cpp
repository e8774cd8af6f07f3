// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/StrokeMask.h"

#include "ofd/DashedLine.h"
#include "ofd/Flattening.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Ofd {

namespace {

// In device pixels.
constexpr qreal leastStep = 0.25;
constexpr qreal flatness = 0.25;
/** Corners of thinner lines are hardly visible. */
constexpr qreal leastJoinedWidth = 1.5;
/** A longer line is tested for being hidden in parts of this length. */
constexpr qreal longestPart = 32;

/** A thin path of more points is drawn without joining its lines. */
constexpr int mostJoinedPoints = 50000;
/** Length of lines for each pixel of the area. A batch can hide lines of later batches. */
constexpr qreal longestBatch = 2;
/** Smaller areas count as this many pixels, because every batch takes time. */
constexpr qreal leastPixels = 65536;
constexpr int mostPointsOfBatch = 65536;

/** Copies a line without points that nearly coincide with the one before; the ends are kept. */
void thinOut(const QPolygonF &line, QPolygonF *points)
{
    points->resize(0);
    points->append(line.first());
    for (int i = 1; i < line.size() - 1; ++i) {
        if ((line.at(i) - points->constLast()).manhattanLength() >= leastStep)
            points->append(line.at(i));
    }
    points->append(line.last());
}

} // namespace

StrokeMask::StrokeMask(const QRect &area, const QTransform &toDevice, const QPen &pen)
    : m_coverage(area)
    , m_toDevice(toDevice)
    , m_fromDevice(toDevice.inverted())
    , m_pen(pen)
{
    const qreal scale = std::sqrt(std::abs(toDevice.determinant()));
    // In Qt a pen of width zero is one pixel wide.
    if (m_pen.widthF() <= 0)
        m_pen.setWidthF(1 / scale);
    m_isThin = m_pen.widthF() * scale < leastJoinedWidth && m_pen.capStyle() == Qt::FlatCap;
    m_stroker.setWidth(m_pen.widthF());
    m_stroker.setCapStyle(m_pen.capStyle());
    m_stroker.setJoinStyle(m_pen.joinStyle());
    m_stroker.setMiterLimit(m_pen.miterLimit());
    m_stroker.setCurveThreshold(flatness / scale);
    const bool hasMitres = m_pen.joinStyle() == Qt::MiterJoin;
    const qreal reach = m_pen.widthF() * (hasMitres ? std::max(1.0, m_pen.miterLimit()) : 1);
    const QRectF mapped = toDevice.mapRect(QRectF(0, 0, reach, reach));
    m_margin = std::max(mapped.width(), mapped.height());
}

void StrokeMask::add(const QPainterPath &path)
{
    m_isThin = m_isThin && path.elementCount() > mostJoinedPoints;
    if (m_pen.style() == Qt::SolidLine) {
        const QRectF area =
            QRectF(m_coverage.area()).adjusted(-m_margin, -m_margin, m_margin, m_margin);
        flatten(path, m_toDevice, area, [&](const QPolygonF &line) { addLine(line); });
    } else {
        // The start of a dash depends on the whole line before it, so no part of it may be cut off.
        const QRectF everywhere = m_toDevice.mapRect(path.controlPointRect());
        DashedLine dashed(m_pen, m_fromDevice);
        const auto addDash = [&](const QPolygonF &dash) { addLine(dash); };
        flatten(path, m_toDevice, everywhere,
                [&](const QPolygonF &line) { dashed.split(line, addDash); });
    }
    outlineBatch();
}

void StrokeMask::addLine(const QPolygonF &line)
{
    thinOut(line, &m_points);
    const bool isClosed = m_points.constFirst() == m_points.constLast();
    bool isWhole = true;
    for (int i = 1; i < m_points.size(); ++i) {
        const QLineF step(m_points.at(i - 1), m_points.at(i));
        isWhole = addVisible(step) && isWhole;
        if (!isBatchFull())
            continue;
        const bool goesOn = !m_piece.isEmpty() && (isClosed || i + 1 < m_points.size());
        endPiece();
        outlineBatch();
        m_gaps.count(m_coverage.image());
        isWhole = false;
        // Added again, so that the stroker joins the next line.
        if (goesOn)
            m_piece << step.p1() << step.p2();
    }
    // The stroker joins the ends of a closed line only if it gets the line in one piece.
    if (isClosed && !isWhole && !m_piece.isEmpty())
        m_piece.append(m_points.at(1));
    endPiece();
}

/** Adds the parts of a straight line that are not hidden; returns whether it is one whole part. */
bool StrokeMask::addVisible(const QLineF &line)
{
    m_parts.clear();
    findVisible(line, 0, 1);
    for (const Part &part : std::as_const(m_parts)) {
        const QPointF from = line.pointAt(part.start);
        const QPointF to = part.end < 1 ? line.pointAt(part.end) : line.p2();
        m_batchLength += (to - from).manhattanLength();
        if (m_isThin) {
            addThin(from, to);
            continue;
        }
        if (part.start > 0)
            endPiece();
        if (m_piece.isEmpty())
            m_piece.append(from);
        m_piece.append(to);
    }
    const bool isVisibleAtEnd = !m_parts.isEmpty() && m_parts.last().end == 1;
    if (!isVisibleAtEnd)
        endPiece();
    return isVisibleAtEnd && m_parts.first().start == 0 && m_parts.size() == 1;
}

/** Covers the rectangle of a line, which is all of it but the joins with its neighbours. */
void StrokeMask::addThin(QPointF from, QPointF to)
{
    const QLineF onPath = m_fromDevice.map(QLineF(from, to));
    const qreal length = onPath.length();
    if (length <= 0)
        return;
    const QPointF across = QPointF(-onPath.dy(), onPath.dx()) * (m_pen.widthF() / 2 / length);
    const QPointF aside = m_toDevice.map(across) - m_toDevice.map(QPointF());
    // All rectangles turn the same way round, so that those that overlap add up.
    const std::array corners{from + aside, to + aside, to - aside, from - aside};
    m_coverage.addPolygon(corners.data(), corners.size());
}

/** Appends the parts of a line to m_parts; the line is that between two shares of a whole one. */
void StrokeMask::findVisible(const QLineF &line, qreal start, qreal end)
{
    const QPointF origin = m_coverage.area().topLeft();
    const auto [left, right] = std::minmax({line.x1(), line.x2()});
    const auto [top, bottom] = std::minmax({line.y1(), line.y2()});
    const QRectF box(QPointF(left - m_margin, top - m_margin) - origin,
                     QPointF(right + m_margin, bottom + m_margin) - origin);
    const QSize size = m_coverage.area().size();
    const qreal length = right - left + bottom - top;
    if (!std::isfinite(length) || box.left() >= size.width() || box.right() <= 0
        || box.top() >= size.height() || box.bottom() <= 0 || m_gaps.isCovered(box))
        return;
    if (length > longestPart) {
        const qreal half = (start + end) / 2;
        findVisible(QLineF(line.p1(), line.center()), start, half);
        findVisible(QLineF(line.center(), line.p2()), half, end);
    } else if (!m_parts.isEmpty() && m_parts.last().end == start) {
        m_parts.last().end = end;
    } else {
        m_parts.append({start, end});
    }
}

bool StrokeMask::isBatchFull() const
{
    const QSize size = m_coverage.area().size();
    const qreal pixels = std::max(leastPixels, qreal(size.width()) * size.height());
    return m_batch.elementCount() + m_piece.size() >= mostPointsOfBatch
           || m_batchLength >= longestBatch * pixels;
}

void StrokeMask::endPiece()
{
    if (m_piece.isEmpty())
        return;
    m_batch.addPolygon(m_fromDevice.map(m_piece));
    m_piece.clear();
}

void StrokeMask::outlineBatch()
{
    flatten(m_stroker.createStroke(m_batch), m_toDevice, m_coverage.area(),
            [&](const QPolygonF &outline) { m_coverage.addPolygon(outline); });
    m_coverage.settle(Qt::WindingFill);
    m_batch = QPainterPath();
    m_batchLength = 0;
}

} // namespace Ofd
