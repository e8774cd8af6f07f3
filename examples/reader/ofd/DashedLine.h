// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPen>
#include <QPolygonF>
#include <QTransform>
#include <QVector>

#include <functional>

namespace Ofd {

/** The dashes of lines that are drawn with a pen, whose width must not be zero. */
class DashedLine
{
public:
    /** @param toPath from the coordinates of the lines to those that the pen measures in. */
    DashedLine(const QPen &pen, const QTransform &toPath);

    /** Calls @p use with each dash of a line. */
    void split(const QPolygonF &line, const std::function<void(const QPolygonF &)> &use);

private:
    /** A position in the dash pattern. */
    struct Place
    {
        int index = 0;
        qreal toNext = 0;

        bool isDash() const { return index % 2 == 0; }
    };

    void goToNext(Place *place) const;

    QTransform m_toPath;
    QVector<qreal> m_lengths;
    Place m_start;
    QPolygonF m_dash;
};

} // namespace Ofd
