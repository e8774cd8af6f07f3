// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/CoverageMask.h"
#include "ofd/GapTable.h"

#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPen>
#include <QTransform>

namespace Ofd {

/**
 * Covers the stroke of a path in a time that is proportional to the length of the path.
 *
 * Qt makes the outline, piece by piece. Left out are points less than a part of a pixel from the
 * one before, lines outside the area, and lines in parts that are already covered.
 */
class StrokeMask
{
public:
    /** @param area in device pixels. */
    StrokeMask(const QRect &area, const QTransform &toDevice, const QPen &pen);

    void add(const QPainterPath &path);
    const QImage &image() const { return m_coverage.image(); }

private:
    void addDashed(const QPainterPath &path);
    void addLine(const QPolygonF &line);
    bool isHidden(QPointF from, QPointF to) const;
    bool isBatchFull() const;
    void endPiece();
    void outlineBatch();

    CoverageMask m_coverage;
    GapTable m_gaps;
    QTransform m_toDevice;
    QTransform m_fromDevice;
    QPen m_pen;
    QPainterPathStroker m_stroker;
    qreal m_margin; ///< The largest distance of the stroke from the path, in device pixels.

    QPolygonF m_piece;    ///< In device pixels.
    QPainterPath m_batch; ///< Pieces that are outlined together, in path coordinates.
    qreal m_batchLength = 0;
};

} // namespace Ofd
