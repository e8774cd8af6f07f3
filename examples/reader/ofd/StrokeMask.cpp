// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/StrokeMask.h"

#include "ofd/DashedLine.h"
#include "ofd/Flattening.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

// In device pixels.
constexpr qreal leastStep = 0.25;
constexpr qreal flatness = 0.25;
/** A longer line is tested for being hidden in parts of this length. */
constexpr qreal longestPart = 32;

/** Length of lines for each pixel of the area. A batch can hide lines of later batches. */
constexpr qreal longestBatch = 2;
/** Smaller areas count as this many pixels, because every batch takes time. */
constexpr qreal leastPixels = 65536;
constexpr int mostPointsOfBatch = 65536;
constexpr int mostDashedPoints = 4000000;

/** The line without points that nearly coincide with the one before; the ends are kept. */
QPolygonF thinned(const QPolygonF &line)
{
    QPolygonF points;
    points.append(line.first());
    for (int i = 1; i < line.size() - 1; ++i) {
        if ((line.at(i) - points.last()).manhattanLength() >= leastStep)
            points.append(line.at(i));
    }
    points.append(line.last());
    return points;
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
    m_stroker.setWidth(m_pen.widthF());
    m_stroker.setCapStyle(m_pen.capStyle());
    m_stroker.setJoinStyle(m_pen.joinStyle());
    m_stroker.setMiterLimit(m_pen.miterLimit());
    m_stroker.setCurveThreshold(flatness / scale);
    const qreal reach = m_pen.widthF() * std::max(1.0, m_pen.miterLimit());
    const QRectF mapped = toDevice.mapRect(QRectF(0, 0, reach, reach));
    m_margin = std::max(mapped.width(), mapped.height());
}

void StrokeMask::add(const QPainterPath &path)
{
    if (m_pen.style() != Qt::SolidLine) {
        addDashed(path);
    } else {
        const QRectF area =
            QRectF(m_coverage.area()).adjusted(-m_margin, -m_margin, m_margin, m_margin);
        const QList<QPolygonF> lines = flattened(path, m_toDevice, area);
        for (const QPolygonF &line : lines)
            addLine(line);
    }
    outlineBatch();
}

void StrokeMask::addDashed(const QPainterPath &path)
{
    // The start of a dash depends on the whole line before it, so no part of it may be cut off.
    const QRectF everywhere = m_toDevice.mapRect(path.controlPointRect());
    const int halvings = int(std::log2(1 + mostDashedPoints / (1 + path.elementCount())));
    const QList<QPolygonF> lines =
        flattened(path, m_toDevice, everywhere, std::min(halvings, mostHalvings));
    for (const QPolygonF &line : lines) {
        const QList<QPolygonF> dashes = dashesOf(m_fromDevice.map(line), m_pen);
        for (const QPolygonF &dash : dashes)
            addLine(m_toDevice.map(dash));
    }
}

void StrokeMask::addLine(const QPolygonF &line)
{
    const QPolygonF points = thinned(line);
    const bool isClosed = points.first() == points.last();
    const qreal longest = m_coverage.area().width() + m_coverage.area().height();
    bool isWhole = true;
    for (int i = 1; i < points.size(); ++i) {
        if (isHidden(points.at(i - 1), points.at(i))) {
            endPiece();
            isWhole = false;
            continue;
        }
        if (m_piece.isEmpty())
            m_piece.append(points.at(i - 1));
        m_piece.append(points.at(i));
        m_batchLength += std::min(longest, (points.at(i) - points.at(i - 1)).manhattanLength());
        if (!isBatchFull())
            continue;
        endPiece();
        outlineBatch();
        isWhole = false;
        // Added again, so that the stroker joins the next line.
        if (isClosed || i + 1 < points.size())
            m_piece << points.at(i - 1) << points.at(i);
    }
    // The stroker joins the ends of a closed line only if it gets the line in one piece.
    if (isClosed && !isWhole && !m_piece.isEmpty())
        m_piece.append(points.at(1));
    endPiece();
}

bool StrokeMask::isHidden(QPointF from, QPointF to) const
{
    const qreal length = (to - from).manhattanLength();
    const QRectF box =
        QRectF(from, to).normalized().adjusted(-m_margin, -m_margin, m_margin, m_margin);
    const QRectF area(m_coverage.area());
    if (!std::isfinite(length) || !box.intersects(area)
        || m_gaps.isCovered(box.translated(-area.topLeft())))
        return true;
    if (length <= longestPart)
        return false;
    const QPointF middle = (from + to) / 2;
    return isHidden(from, middle) && isHidden(middle, to);
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
    const QList<QPolygonF> outlines =
        flattened(m_stroker.createStroke(m_batch), m_toDevice, m_coverage.area());
    for (const QPolygonF &outline : outlines)
        m_coverage.addPolygon(outline);
    m_coverage.settle(Qt::WindingFill);
    m_gaps.count(m_coverage.image());
    m_batch = QPainterPath();
    m_batchLength = 0;
}

} // namespace Ofd
