// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRectF>

#include <vector>

namespace Ofd {

/** Tells of any rectangle of a mask, in the same time, whether all of it is covered. */
class GapTable
{
public:
    /** Until a mask is counted, nothing is covered. */
    void count(const QImage &mask);
    /** Whether all pixels are covered that a rectangle has part in and the mask has. */
    bool isCovered(const QRectF &rect) const;

private:
    quint32 gapsBefore(int x, int y) const { return m_sums[std::size_t(y) * m_stride + x]; }

    QRect m_area;
    std::size_t m_stride = 0;
    /** How many pixels above and to the left of a corner are not covered. */
    std::vector<quint32> m_sums;
};

} // namespace Ofd
