// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPolygonF>
#include <QRect>

#include <vector>

namespace Ofd {

/**
 * The coverage of each pixel of an area by polygons. All points are in device pixels.
 *
 * The time for an edge depends on the pixels that it crosses, and not on other edges. Qt's
 * rasteriser searches a list of all crossings of the scan line for each edge, and takes seconds for
 * a few hundred edges across the page.
 */
class CoverageMask
{
public:
    explicit CoverageMask(const QRect &area);

    QRect area() const { return m_area; }

    /** Adds a polygon, which is closed automatically, to the shape that settle() completes. */
    void addPolygon(const QPolygonF &polygon) { addPolygon(polygon.constData(), polygon.size()); }
    void addPolygon(const QPointF *points, qsizetype count);
    /** Adds the inside of the shape to the coverage and begins another shape. */
    void settle(Qt::FillRule rule);

    /** The coverage as alpha. */
    const QImage &image() const { return m_coverage; }

private:
    template <typename CoverOf>
    void settleAs(CoverOf coverOf);
    void addEdge(QPointF from, QPointF to);
    void addEdgeBesideArea(QPointF from, QPointF to);
    void addEdgeInArea(QPointF from, QPointF to);
    void addCrossings(double *row, double left, double right, double cover) const;

    QRect m_area;
    /** One column more than the area: an edge adds a part of its coverage to the next pixel. */
    int m_stride;
    /** The difference of coverage between a pixel and the one to its left. */
    std::vector<double> m_changes;
    // The rows that the shape may have changed.
    int m_firstRow;
    int m_endRow = 0;
    QImage m_coverage;
};

} // namespace Ofd
