// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Flattening.h"

#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** The largest distance between line and curve, in device pixels. */
constexpr qreal tolerance = 0.1;
/** A curve becomes at most two to this power lines. */
constexpr int mostHalvings = 12;
constexpr int mostPoints = 4000000;

struct Curve
{
    QPointF start;
    QPointF first;
    QPointF second;
    QPointF end;
};

bool isFlat(const Curve &curve)
{
    // A curve is nearer to its chord than three quarters of these differences.
    const QPointF one = curve.start - 2 * curve.first + curve.second;
    const QPointF other = curve.first - 2 * curve.second + curve.end;
    return std::max(one.manhattanLength(), other.manhattanLength()) * 3 / 4 <= tolerance;
}

bool isBesides(const Curve &curve, const QRectF &area)
{
    const auto [left, right] =
        std::minmax({curve.start.x(), curve.first.x(), curve.second.x(), curve.end.x()});
    const auto [top, bottom] =
        std::minmax({curve.start.y(), curve.first.y(), curve.second.y(), curve.end.y()});
    return left > area.right() || right < area.left() || top > area.bottom() || bottom < area.top();
}

void append(QPolygonF &line, const Curve &curve, const QRectF &area, int halvings)
{
    if (halvings == 0 || isFlat(curve) || isBesides(curve, area)) {
        line.append(curve.end);
        return;
    }
    const QPointF early = (curve.start + curve.first) / 2;
    const QPointF top = (curve.first + curve.second) / 2;
    const QPointF late = (curve.second + curve.end) / 2;
    const QPointF earlier = (early + top) / 2;
    const QPointF later = (top + late) / 2;
    const QPointF middle = (earlier + later) / 2;
    append(line, {curve.start, early, earlier, middle}, area, halvings - 1);
    append(line, {middle, later, late, curve.end}, area, halvings - 1);
}

} // namespace

void flatten(const QPainterPath &path, const QTransform &toDevice, const QRectF &area,
             const std::function<void(const QPolygonF &)> &use)
{
    const int halvings =
        std::min(mostHalvings, int(std::log2(1 + mostPoints / (1 + path.elementCount()))));
    // One for all subpaths, as there may be a million of them.
    QPolygonF line;
    const auto pointAt = [&](int i) { return toDevice.map(QPointF(path.elementAt(i))); };
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.isCurveTo()) {
            append(line, {line.last(), pointAt(i), pointAt(i + 1), pointAt(i + 2)}, area, halvings);
            i += 2;
            continue;
        }
        if (element.isMoveTo() && !line.isEmpty()) {
            use(line);
            line.resize(0);
        }
        line.append(pointAt(i));
    }
    if (!line.isEmpty())
        use(line);
}

} // namespace Ofd
