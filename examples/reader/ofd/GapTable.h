// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRectF>

#include <vector>

namespace Ofd {

/** Answers in constant time whether a rectangle of a mask is completely covered. */
class GapTable
{
public:
    /** Prepares the table for a mask. Before the first call nothing is covered. */
    void count(const QImage &mask);
    /** Whether all pixels of the mask that the rectangle touches are covered. */
    bool isCovered(const QRectF &rect) const;

private:
    quint32 gapsBefore(int x, int y) const { return m_sums[std::size_t(y) * m_stride + x]; }

    QRect m_area;
    std::size_t m_stride = 0;
    /** The number of uncovered pixels above and to the left of each corner. */
    std::vector<quint32> m_sums;
};

} // namespace Ofd
