// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DashedLine.h"

#include <cmath>

namespace Ofd {

DashedLine::DashedLine(const QPen &pen, const QTransform &toPath)
    : m_toPath(toPath.m11(), toPath.m12(), toPath.m21(), toPath.m22(), 0, 0)
    , m_lengths(pen.dashPattern())
{
    qreal period = 0;
    for (qreal &length : m_lengths) {
        length *= pen.widthF();
        period += length;
    }
    qreal offset = std::fmod(pen.dashOffset() * pen.widthF(), period);
    if (offset < 0)
        offset += period;
    for (m_start.toNext = m_lengths.first(); offset >= m_start.toNext; goToNext(&m_start))
        offset -= m_start.toNext;
    m_start.toNext -= offset;
}

void DashedLine::goToNext(Place *place) const
{
    place->index = (place->index + 1) % int(m_lengths.size());
    place->toNext = m_lengths.at(place->index);
}

void DashedLine::split(const QPolygonF &line, const std::function<void(const QPolygonF &)> &use)
{
    Place place = m_start;
    m_dash.resize(0);
    m_dash.append(line.first());
    for (int i = 1; i < line.size(); ++i) {
        const QPointF way = line.at(i) - line.at(i - 1);
        const QPointF onPath = m_toPath.map(way);
        const qreal length = std::hypot(onPath.x(), onPath.y());
        qreal gone = 0;
        while (place.toNext < length - gone) {
            gone += place.toNext;
            const QPointF change = line.at(i - 1) + way * (gone / length);
            m_dash.append(change);
            if (place.isDash())
                use(m_dash);
            goToNext(&place);
            m_dash.resize(0);
            m_dash.append(change);
        }
        place.toNext -= length - gone;
        // The points of a gap are of no use.
        if (place.isDash())
            m_dash.append(line.at(i));
    }
    if (place.isDash())
        use(m_dash);
}

} // namespace Ofd
