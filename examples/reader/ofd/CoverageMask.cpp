// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/CoverageMask.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

constexpr int opaque = 255;

QPointF pointAtX(QPointF from, QPointF to, double x)
{
    return QPointF(x, from.y() + (to.y() - from.y()) * (x - from.x()) / (to.x() - from.x()));
}

QPointF pointAtY(QPointF from, QPointF to, double y)
{
    return QPointF(from.x() + (to.x() - from.x()) * (y - from.y()) / (to.y() - from.y()), y);
}

} // namespace

CoverageMask::CoverageMask(const QRect &area)
    : m_area(area)
    , m_stride(area.width() + 1)
    , m_changes(std::size_t(m_stride) * std::size_t(area.height()), 0.0)
    , m_firstRow(area.height())
    , m_coverage(area.size(), QImage::Format_Alpha8)
{
    m_coverage.fill(0);
}

void CoverageMask::addPolygon(const QPointF *points, qsizetype count)
{
    if (count == 0)
        return;
    const QPointF origin = m_area.topLeft();
    QPointF previous = points[count - 1] - origin;
    for (qsizetype i = 0; i < count; ++i) {
        const QPointF next = points[i] - origin;
        addEdge(previous, next);
        previous = next;
    }
}

void CoverageMask::addEdge(QPointF from, QPointF to)
{
    const double height = m_area.height();
    const auto [top, bottom] = std::minmax({from.y(), to.y()});
    // This form of the comparison also refuses values that are not a number.
    if (!(top < bottom && top < height && bottom > 0 && std::isfinite(from.x() - to.x())))
        return;
    const auto withinRows = [&](QPointF point) {
        const double y = std::clamp(point.y(), 0.0, height);
        return y == point.y() ? point : pointAtY(from, to, y);
    };
    addEdgeBesideArea(withinRows(from), withinRows(to));
}

void CoverageMask::addEdgeBesideArea(QPointF from, QPointF to)
{
    const double width = m_area.width();
    const auto [left, right] = std::minmax({from.x(), to.x()});
    // An edge only changes pixels to its right.
    if (left >= width)
        return;
    for (const double side : {0.0, width}) {
        if (left < side && right > side) {
            const QPointF crossing = pointAtX(from, to, side);
            addEdgeBesideArea(from, crossing);
            addEdgeBesideArea(crossing, to);
            return;
        }
    }
    addEdgeInArea(QPointF(std::max(from.x(), 0.0), from.y()),
                  QPointF(std::max(to.x(), 0.0), to.y()));
}

void CoverageMask::addEdgeInArea(QPointF from, QPointF to)
{
    const double direction = from.y() < to.y() ? 1 : -1;
    if (direction < 0)
        std::swap(from, to);
    const double end = std::min(to.y(), double(m_area.height()));
    double y = std::max(from.y(), 0.0);
    if (y >= end)
        return;
    const double slope = (to.x() - from.x()) / (to.y() - from.y());
    const auto [left, right] = std::minmax({from.x(), to.x()});
    double x = from.x();
    int row = int(y);
    m_firstRow = std::min(m_firstRow, row);
    for (; y < end; ++row) {
        const double nextY = std::min(row + 1.0, end);
        const double nextX = std::clamp(x + slope * (nextY - y), left, right);
        addCrossings(&m_changes[std::size_t(row) * std::size_t(m_stride)], std::min(x, nextX),
                     std::max(x, nextX), direction * (nextY - y));
        x = nextX;
        y = nextY;
    }
    m_endRow = std::max(m_endRow, row);
}

void CoverageMask::addCrossings(double *row, double left, double right, double cover) const
{
    const int first = std::min(int(left), m_area.width() - 1);
    const int last = std::min(int(right), m_area.width() - 1);
    if (first == last) {
        const double toNext = cover * ((left + right) / 2 - first);
        row[first] += cover - toNext;
        row[first + 1] += toNext;
        return;
    }
    const double ofPixel = cover / (right - left);
    const double ofFirst = ofPixel * (first + 1 - left);
    const double ofLast = ofPixel * (right - last);
    const double firstToNext = ofFirst * (left + 1 - first) / 2;
    const double lastToNext = ofLast * (right - last) / 2;
    row[first] += ofFirst - firstToNext;
    row[first + 1] += firstToNext;
    if (last > first + 1) {
        row[first + 1] += ofPixel / 2;
        for (int column = first + 2; column < last; ++column)
            row[column] += ofPixel;
        row[last] += ofPixel / 2;
    }
    row[last] += ofLast - lastToNext;
    row[last + 1] += lastToNext;
}

void CoverageMask::settle(Qt::FillRule rule)
{
    if (rule == Qt::WindingFill) {
        settleAs([](double windings) { return std::min(std::abs(windings), 1.0); });
        return;
    }
    settleAs([](double windings) {
        const double rest = std::fmod(std::abs(windings), 2.0);
        return std::min(rest, 2 - rest);
    });
}

/** @param coverOf the coverage of a pixel that the edges wind around so many times. */
template <typename CoverOf>
void CoverageMask::settleAs(CoverOf coverOf)
{
    for (int y = m_firstRow; y < m_endRow; ++y) {
        double *changes = &m_changes[std::size_t(y) * std::size_t(m_stride)];
        uchar *line = m_coverage.scanLine(y);
        double windings = 0;
        for (int x = 0; x < m_area.width(); ++x) {
            windings += changes[x];
            const int cover = int(coverOf(windings) * opaque + 0.5);
            line[x] = uchar(std::min(line[x] + cover, opaque));
        }
        std::fill_n(changes, m_stride, 0.0);
    }
    m_firstRow = m_area.height();
    m_endRow = 0;
}

} // namespace Ofd
