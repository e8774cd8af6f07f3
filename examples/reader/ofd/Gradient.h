// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Shading.h"

namespace Ofd {

/** The colours along an axis, and how they continue beyond its ends. */
struct Course
{
    QGradientStops stops; ///< At ascending positions from 0 to 1; some may be equal.
    QGradient::Spread spread = QGradient::PadSpread;
    qreal unit = 1; ///< The length of one repetition, as a share of the axis.
    bool goesBeforeStart = false;
    bool goesBeyondEnd = false;
};

class AxialGradient : public Shading
{
public:
    /** The ends must differ. */
    AxialGradient(QPointF start, QPointF end, const Course &course);

    Ink ink(const QPainter &painter, const QRectF &bounds) const override;

private:
    QBrush m_brush;
    QTransform m_fromAxis; ///< From coordinates where the axis reaches from (0, 0) to (1, 0).
    bool m_goesBeforeStart;
    bool m_goesBeyondEnd;
};

struct Circle
{
    QPointF centre;
    qreal radius = 0;
};

/** Between two circles, which may lie inside of each other, under a transform. */
class RadialGradient : public SampledShading
{
public:
    /** The circles must differ, and the transform be invertible. */
    RadialGradient(Circle start, Circle end, const QTransform &transform, const Course &course);

    Ink ink(const QPainter &painter, const QRectF &bounds) const override;

protected:
    void draw(QImage &image, const QTransform &toImage) const override;

private:
    QRgb colourAt(QPointF point) const;
    bool isVisibleAt(qreal position) const;
    QRgb colourOf(qreal position) const;
    Ink inkOfNested(const QRectF &bounds) const;

    Circle m_start;
    Circle m_end;
    QTransform m_transform;
    Course m_course;
    QVector<QRgb> m_ramp; ///< The colours from start to end.
};

} // namespace Ofd
