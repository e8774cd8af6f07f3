// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRectF>

#include <algorithm>
#include <vector>

namespace Ofd {

/** Answers in constant time whether a rectangle of a mask is completely covered. */
class GapTable
{
public:
    /** Prepares the table for a mask. Before the first call nothing is covered. */
    void count(const QImage &mask);
    /**
     * Whether all pixels of the mask that the rectangle touches, and some near it, are covered.
     * The rectangle must touch the mask.
     */
    bool isCovered(const QRectF &rect) const
    {
        if (m_sums.empty())
            return false;
        const int left = blockAt(rect.left(), m_columns);
        const int right = blockAt(rect.right(), m_columns) + 1;
        const int top = blockAt(rect.top(), m_rows);
        const int bottom = blockAt(rect.bottom(), m_rows) + 1;
        return gapsBefore(right, bottom) + gapsBefore(left, top)
               == gapsBefore(right, top) + gapsBefore(left, bottom);
    }

private:
    /** The side of the squares that are counted, in pixels: a table of all pixels is slow. */
    static constexpr int side = 4;

    static int blockAt(qreal pixel, int count)
    {
        return int(std::clamp(pixel / side, 0.0, qreal(count - 1)));
    }
    quint32 gapsBefore(int column, int row) const
    {
        return m_sums[std::size_t(row) * (std::size_t(m_columns) + 1) + std::size_t(column)];
    }

    int m_columns = 0;
    int m_rows = 0;
    /** The number of blocks with uncovered pixels above and to the left of each corner. */
    std::vector<quint32> m_sums;
};

} // namespace Ofd
