// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ShadingReader.h"

#include "ofd/Gradient.h"
#include "ofd/Limits.h"
#include "ofd/Mesh.h"
#include "ofd/Values.h"

#include <QLineF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Ofd {

namespace {

/** In millimetres; a shorter axis cannot be seen. */
constexpr qreal leastAxis = 1e-4;
/** As a share of the axis; the repetitions of a shorter unit cannot be seen. */
constexpr qreal leastUnit = 1e-4;
constexpr int extendStart = 1;
constexpr int extendEnd = 2;

const qreal unset = std::numeric_limits<qreal>::quiet_NaN();

QGradient::Spread spreadOf(const QString &mapType)
{
    if (mapType == QLatin1String("Repeat"))
        return QGradient::RepeatSpread;
    return mapType == QLatin1String("Reflect") ? QGradient::ReflectSpread : QGradient::PadSpread;
}

/** Spreads stops without a position evenly between their neighbours, and makes all ascend. */
void settlePositions(QGradientStops &stops)
{
    const int last = int(stops.size()) - 1;
    if (std::isnan(stops.at(last).first))
        stops[last].first = 1;
    if (std::isnan(stops.at(0).first))
        stops[0].first = 0;
    int known = 0;
    for (int i = 0; i <= last; ++i) {
        if (std::isnan(stops.at(i).first))
            continue;
        stops[i].first = std::clamp(stops.at(i).first, stops.at(known).first, 1.0);
        const qreal step = (stops.at(i).first - stops.at(known).first) / std::max(1, i - known);
        for (int between = known + 1; between < i; ++between)
            stops[between].first = stops.at(between - 1).first + step;
        known = i;
    }
}

QGradientStops stopsOf(const XmlElement &shade, const ShadingReader::ColourOf &colourOf)
{
    QGradientStops stops;
    for (const XmlElement &segment : shade.children) {
        const XmlElement *colour = segment.child("Color");
        if (!segment.is("Segment") || !colour)
            continue;
        if (stops.size() >= Limits::gradientStops)
            return {};
        const qreal position = Values::number(segment.attribute("Position"), unset);
        // These functions return a first argument that is not a number.
        stops.append({std::min(std::max(position, 0.0), 1.0), colourOf(*colour)});
    }
    if (!stops.isEmpty())
        settlePositions(stops);
    return stops;
}

/** @p length is that of the axis. */
Course courseOf(const XmlElement &shade, qreal length, const ShadingReader::ColourOf &colourOf)
{
    Course course;
    course.stops = stopsOf(shade, colourOf);
    course.spread = spreadOf(shade.attribute("MapType"));
    const qreal unit = Values::number(shade.attribute("MapUnit"), 0);
    if (unit > 0)
        course.unit = std::max(leastUnit, unit / length);
    const int extend = int(Values::number(shade.attribute("Extend"), 0));
    course.goesBeforeStart = (extend & extendStart) != 0;
    course.goesBeyondEnd = (extend & extendEnd) != 0;
    return course;
}

std::shared_ptr<const Shading> axial(const XmlElement &shade,
                                     const ShadingReader::ColourOf &colourOf)
{
    const QPointF start = Values::point(shade.attribute("StartPoint"), QPointF());
    const QPointF end = Values::point(shade.attribute("EndPoint"), start);
    const qreal length = QLineF(start, end).length();
    if (length < leastAxis)
        return nullptr;
    const Course course = courseOf(shade, length, colourOf);
    if (course.stops.isEmpty())
        return nullptr;
    return std::make_shared<AxialGradient>(start, end, course);
}

std::shared_ptr<const Shading> radial(const XmlElement &shade,
                                      const ShadingReader::ColourOf &colourOf)
{
    const QPointF start = Values::point(shade.attribute("StartPoint"), QPointF());
    const QPointF end = Values::point(shade.attribute("EndPoint"), start);
    const qreal startRadius = std::max(0.0, Values::number(shade.attribute("StartRadius"), 0));
    const qreal endRadius = std::max(0.0, Values::number(shade.attribute("EndRadius"), 0));
    const qreal distance = QLineF(start, end).length();
    const qreal growth = std::abs(endRadius - startRadius);
    const qreal eccentricity = Values::number(shade.attribute("Eccentricity"), 0);
    if (std::max(startRadius, endRadius) < leastAxis || std::max(distance, growth) < leastAxis
        || eccentricity < 0 || eccentricity >= 1)
        return nullptr;
    // Without a line between the centres, the unit is measured along the radii.
    const Course course = courseOf(shade, distance < leastAxis ? growth : distance, colourOf);
    if (course.stops.isEmpty())
        return nullptr;
    QTransform toEllipses;
    toEllipses.rotate(Values::number(shade.attribute("Angle"), 0));
    toEllipses.scale(1, std::sqrt(1 - eccentricity * eccentricity));
    bool isInvertible = false;
    const QTransform toCircles = toEllipses.inverted(&isInvertible);
    if (!isInvertible)
        return nullptr;
    return std::make_shared<RadialGradient>(Circle{toCircles.map(start), startRadius},
                                            Circle{toCircles.map(end), endRadius}, toEllipses,
                                            course);
}

std::vector<MeshPoint> pointsOf(const XmlElement &shade, const ShadingReader::ColourOf &colourOf)
{
    std::vector<MeshPoint> points;
    for (const XmlElement &element : shade.children) {
        const XmlElement *colour = element.child("Color");
        if (!element.is("Point") || !colour)
            continue;
        if (points.size() >= Limits::meshPoints)
            return {};
        points.push_back({QPointF(Values::number(element.attribute("X"), 0),
                                  Values::number(element.attribute("Y"), 0)),
                          colourOf(*colour)});
    }
    return points;
}

/** The flags of the points that pointsOf() reads. */
std::vector<int> flagsOf(const XmlElement &shade)
{
    std::vector<int> flags;
    for (const XmlElement &element : shade.children) {
        if (element.is("Point") && element.child("Color"))
            flags.push_back(int(Values::number(element.attribute("EdgeFlag"), 0)));
    }
    return flags;
}

/** A flag of 0 begins a triangle of three points; others add a point to an edge of the last one. */
std::vector<Mesh::Triangle> trianglesOf(const std::vector<int> &flags)
{
    std::vector<Mesh::Triangle> triangles;
    const int count = int(flags.size());
    for (int i = 0; i < count; ++i) {
        const int flag = flags[std::size_t(i)];
        if (flag == 0 || triangles.empty()) {
            if (i + 2 < count)
                triangles.push_back({i, i + 1, i + 2});
            i += 2;
            continue;
        }
        const Mesh::Triangle last = triangles.back();
        triangles.push_back({flag == 1 ? last[1] : last[0], last[2], i});
    }
    return triangles;
}

/** Two triangles for each cell of the lattice; an incomplete last row is not used. */
std::vector<Mesh::Triangle> trianglesOf(int points, int pointsPerRow)
{
    std::vector<Mesh::Triangle> triangles;
    for (int next = pointsPerRow; next + pointsPerRow <= points; next += pointsPerRow) {
        for (int i = next; i < next + pointsPerRow - 1; ++i) {
            triangles.push_back({i - pointsPerRow, i - pointsPerRow + 1, i});
            triangles.push_back({i - pointsPerRow + 1, i, i + 1});
        }
    }
    return triangles;
}

std::shared_ptr<const Shading> mesh(const XmlElement &shade,
                                    const ShadingReader::ColourOf &colourOf)
{
    std::vector<MeshPoint> points = pointsOf(shade, colourOf);
    if (points.empty())
        return nullptr;
    std::vector<Mesh::Triangle> triangles;
    if (shade.is("GouraudShd")) {
        triangles = trianglesOf(flagsOf(shade));
    } else {
        const qreal perRow = Values::number(shade.attribute("VerticesPerRow"), 0);
        if (perRow >= 2 && perRow <= qreal(points.size()))
            triangles = trianglesOf(int(points.size()), int(perRow));
    }
    if (triangles.empty())
        return nullptr;
    const auto shading = std::make_shared<Mesh>(std::move(points), std::move(triangles));
    const XmlElement *background = shade.child("BackColor");
    if (background && Values::number(shade.attribute("Extend"), 0) > 0)
        shading->setBackground(colourOf(*background));
    return shading;
}

} // namespace

std::shared_ptr<const Shading> ShadingReader::read(const XmlElement &shade,
                                                   const ColourOf &colourOf)
{
    if (shade.is("AxialShd"))
        return axial(shade, colourOf);
    if (shade.is("RadialShd"))
        return radial(shade, colourOf);
    const bool isMesh = shade.is("GouraudShd") || shade.is("LaGouraudShd");
    return isMesh ? mesh(shade, colourOf) : nullptr;
}

} // namespace Ofd
