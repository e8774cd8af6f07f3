// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/CoverageMask.h"
#include "ofd/GapTable.h"

#include <QLineF>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>
#include <QTransform>

namespace Ofd {

/**
 * Covers the stroke of a path in a time that is proportional to the length of the path.
 *
 * Qt makes the outline, piece by piece. Left out are points less than a part of a pixel from the
 * one before, lines outside the area, lines in parts that are already covered, and the joins of a
 * thin path of very many points.
 */
class StrokeMask
{
public:
    /** @param area in device pixels. */
    StrokeMask(const QRect &area, const QTransform &toDevice, const QPen &pen);

    void add(const QPainterPath &path);
    const QImage &image() const { return m_coverage.image(); }

private:
    void addLine(const QPolygonF &line);
    bool addVisible(const QLineF &line);
    void addThin(QPointF from, QPointF to);
    void findVisible(const QLineF &line, qreal start, qreal end);
    bool isBatchFull() const;
    void endPiece();
    void outlineBatch();

    /** A part of a line between two shares of its length. */
    struct Part
    {
        qreal start = 0;
        qreal end = 1;
    };

    CoverageMask m_coverage;
    GapTable m_gaps;
    QTransform m_toDevice;
    QTransform m_fromDevice;
    QPen m_pen;
    QPainterPathStroker m_stroker;
    bool m_isThin = false;
    qreal m_margin; ///< The largest distance of the stroke from the path, in device pixels.

    QPolygonF m_points;    ///< Of the line that is being added.
    QVector<Part> m_parts; ///< The visible parts of the line that is being added.
    QPolygonF m_piece;     ///< In device pixels.
    QPainterPath m_batch;  ///< Pieces that are outlined together, in path coordinates.
    qreal m_batchLength = 0;
};

} // namespace Ofd
