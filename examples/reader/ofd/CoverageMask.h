// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPolygonF>
#include <QRect>

#include <vector>

namespace Ofd {

/**
 * How much of each pixel of an area is covered by polygons. All points are in device pixels.
 *
 * An edge costs as much as it crosses pixels, however many other edges cross the same ones. The
 * toolkit's rasteriser searches a list of all crossings of the row for each, and takes seconds for
 * a few hundred edges across the page.
 */
class CoverageMask
{
public:
    explicit CoverageMask(const QRect &area);

    QRect area() const { return m_area; }

    /** Adds a polygon, which is closed, to the shape that the next settle() completes. */
    void addPolygon(const QPolygonF &polygon);
    /** Covers what the shape encloses besides what is covered already, and begins another one. */
    void settle(Qt::FillRule rule);

    /** The coverage as alpha. */
    const QImage &image() const { return m_coverage; }

private:
    void addEdge(QPointF from, QPointF to);
    void addEdgeBesideArea(QPointF from, QPointF to);
    void addEdgeInArea(QPointF from, QPointF to);
    void addCrossings(double *row, double left, double right, double cover) const;

    QRect m_area;
    /** One column more than the area has: an edge leaves a part of its cover to the next pixel. */
    int m_stride;
    /** By how much the cover of a pixel is more than that of the one to the left. */
    std::vector<double> m_changes;
    QImage m_coverage;
};

} // namespace Ofd
