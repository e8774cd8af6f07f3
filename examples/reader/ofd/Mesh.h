// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Shading.h"

#include <array>
#include <vector>

namespace Ofd {

struct MeshPoint
{
    QPointF place;
    QColor colour;
};

/** Triangles whose corners have colours, each above those before it. */
class Mesh : public SampledShading
{
public:
    using Triangle = std::array<int, 3>; ///< Indexes of points.

    Mesh(std::vector<MeshPoint> points, std::vector<Triangle> triangles);

    /** The colour outside of the triangles; transparent without it. */
    void setBackground(const QColor &colour) { m_background = colour; }

protected:
    void draw(QImage &image, const QTransform &toImage) const override;
    qreal load(const QTransform &toDevice, const QRectF &area) const override;

private:
    std::vector<MeshPoint> m_points;
    std::vector<Triangle> m_triangles;
    QColor m_background = Qt::transparent;
};

} // namespace Ofd
