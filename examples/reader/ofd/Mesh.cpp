// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Mesh.h"

#include <QImage>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** So many layers of triangles cost as much as one pixel of the other shadings. */
constexpr qreal cheapLayers = 8;
/** In pixels: what it costs to find where a row of a triangle begins and ends. */
constexpr qreal rowCost = 8;

/** Red, green, blue, all multiplied by alpha, and alpha; from 0 to 255. */
using Channels = std::array<qreal, 4>;

struct Corner
{
    QPointF place;
    Channels channels;
};

Channels channelsOf(const QColor &colour)
{
    const qreal alpha = colour.alphaF();
    return {colour.red() * alpha, colour.green() * alpha, colour.blue() * alpha, 255 * alpha};
}

/** Linear functions of a place, one for each channel: value, change to the right and downwards. */
struct Plane
{
    Channels first;
    Channels right;
    Channels down;
    QPointF origin;

    QRgb at(qreal x, qreal y) const
    {
        std::array<int, 4> parts;
        for (std::size_t i = 0; i < 4; ++i) {
            const qreal value = first[i] + right[i] * (x - origin.x()) + down[i] * (y - origin.y());
            parts[i] = int(std::clamp(value, 0.0, 255.0) + 0.5);
        }
        const int alpha = parts[3];
        return qRgba(std::min(parts[0], alpha), std::min(parts[1], alpha),
                     std::min(parts[2], alpha), alpha);
    }
};

/** @p area is twice that of the triangle, with a sign. */
Plane planeThrough(const std::array<Corner, 3> &corners, qreal area)
{
    const QPointF one = corners[1].place - corners[0].place;
    const QPointF two = corners[2].place - corners[0].place;
    Plane plane{corners[0].channels, {}, {}, corners[0].place};
    for (std::size_t i = 0; i < 4; ++i) {
        const qreal first = corners[1].channels[i] - corners[0].channels[i];
        const qreal second = corners[2].channels[i] - corners[0].channels[i];
        plane.right[i] = (first * two.y() - second * one.y()) / area;
        plane.down[i] = (second * one.x() - first * two.x()) / area;
    }
    return plane;
}

/** The index of the first pixel whose centre is not before the coordinate. */
int firstPixel(qreal coordinate, int most)
{
    return int(std::clamp(std::ceil(coordinate - 0.5), 0.0, qreal(most)));
}

/**
 * Where the edge crosses the height. Computed from its upper end always, so that two triangles have
 * neither a gap nor an overlap at their common edge.
 */
bool crossing(QPointF from, QPointF to, qreal height, qreal *x)
{
    if (from.y() > to.y())
        std::swap(from, to);
    if (height < from.y() || height >= to.y())
        return false;
    *x = from.x() + (to.x() - from.x()) * ((height - from.y()) / (to.y() - from.y()));
    return true;
}

QRectF boundsOf(const std::array<QPointF, 3> &places)
{
    const auto [left, right] = std::minmax({places[0].x(), places[1].x(), places[2].x()});
    const auto [top, bottom] = std::minmax({places[0].y(), places[1].y(), places[2].y()});
    return QRectF(QPointF(left, top), QPointF(right, bottom));
}

void drawTriangle(QImage &image, const std::array<Corner, 3> &corners)
{
    const QPointF one = corners[1].place - corners[0].place;
    const QPointF two = corners[2].place - corners[0].place;
    const qreal area = one.x() * two.y() - one.y() * two.x();
    if (!std::isnormal(area))
        return;
    const Plane plane = planeThrough(corners, area);
    const QRectF bounds = boundsOf({corners[0].place, corners[1].place, corners[2].place});
    const int end = firstPixel(bounds.bottom(), image.height());
    for (int y = firstPixel(bounds.top(), image.height()); y < end; ++y) {
        qreal left = bounds.right();
        qreal right = bounds.left();
        for (std::size_t i = 0; i < 3; ++i) {
            qreal x = 0;
            if (!crossing(corners[i].place, corners[(i + 1) % 3].place, y + 0.5, &x))
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
        }
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const int last = firstPixel(right, image.width());
        for (int x = firstPixel(left, image.width()); x < last; ++x)
            line[x] = plane.at(x + 0.5, y + 0.5);
    }
}

} // namespace

Mesh::Mesh(std::vector<MeshPoint> points, std::vector<Triangle> triangles)
    : m_points(std::move(points))
    , m_triangles(std::move(triangles))
{
}

void Mesh::draw(QImage &image, const QTransform &toImage) const
{
    image.fill(m_background);
    std::vector<Corner> corners;
    corners.reserve(m_points.size());
    for (const MeshPoint &point : m_points)
        corners.push_back({toImage.map(point.place), channelsOf(point.colour)});
    for (const Triangle &triangle : m_triangles)
        drawTriangle(image, {corners[std::size_t(triangle[0])], corners[std::size_t(triangle[1])],
                             corners[std::size_t(triangle[2])]});
}

qreal Mesh::load(const QTransform &toDevice, const QRectF &area) const
{
    qreal drawn = 0;
    for (const Triangle &triangle : m_triangles) {
        std::array<QPointF, 3> places;
        for (std::size_t i = 0; i < 3; ++i)
            places[i] = toDevice.map(m_points[std::size_t(triangle[i])].place);
        const QRectF shown = boundsOf(places).intersected(area);
        drawn += (shown.width() + rowCost) * shown.height();
    }
    return drawn / (area.width() * area.height()) / cheapLayers;
}

} // namespace Ofd
