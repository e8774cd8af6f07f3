// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DashedLine.h"

#include <QLineF>
#include <QVector>

#include <cmath>

namespace Ofd {

namespace {

/** A position in the dash pattern of a pen. */
class PatternPlace
{
public:
    explicit PatternPlace(const QPen &pen)
        : m_lengths(pen.dashPattern())
    {
        qreal period = 0;
        for (qreal &length : m_lengths) {
            length *= pen.widthF();
            period += length;
        }
        qreal offset = std::fmod(pen.dashOffset() * pen.widthF(), period);
        if (offset < 0)
            offset += period;
        for (m_toNext = m_lengths.first(); offset >= m_toNext; goToNext())
            offset -= m_toNext;
        goOn(offset);
    }

    bool isDash() const { return m_index % 2 == 0; }
    qreal toNext() const { return m_toNext; }
    void goToNext()
    {
        m_index = (m_index + 1) % int(m_lengths.size());
        m_toNext = m_lengths.at(m_index);
    }
    void goOn(qreal length) { m_toNext -= length; }

private:
    QVector<qreal> m_lengths;
    int m_index = 0;
    qreal m_toNext = 0;
};

} // namespace

QList<QPolygonF> dashesOf(const QPolygonF &line, const QPen &pen)
{
    QList<QPolygonF> dashes;
    PatternPlace place(pen);
    QPolygonF dash({line.first()});
    for (int i = 1; i < line.size(); ++i) {
        const QLineF way(line.at(i - 1), line.at(i));
        const qreal length = way.length();
        qreal gone = 0;
        while (place.toNext() < length - gone) {
            gone += place.toNext();
            const QPointF change = way.pointAt(gone / length);
            if (place.isDash())
                dashes.append(QPolygonF(dash << change));
            place.goToNext();
            dash = QPolygonF({change});
        }
        place.goOn(length - gone);
        dash.append(way.p2());
    }
    if (place.isDash())
        dashes.append(dash);
    return dashes;
}

} // namespace Ofd
