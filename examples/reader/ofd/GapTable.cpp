// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/GapTable.h"

namespace Ofd {

void GapTable::count(const QImage &mask)
{
    m_area = mask.rect();
    m_stride = std::size_t(mask.width()) + 1;
    m_sums.assign(m_stride * (std::size_t(mask.height()) + 1), 0);
    for (int y = 0; y < mask.height(); ++y) {
        const uchar *line = mask.constScanLine(y);
        const quint32 *above = &m_sums[std::size_t(y) * m_stride];
        quint32 *sums = &m_sums[std::size_t(y + 1) * m_stride];
        quint32 gapsOfRow = 0;
        for (int x = 0; x < mask.width(); ++x) {
            gapsOfRow += line[x] < 255 ? 1 : 0;
            sums[x + 1] = above[x + 1] + gapsOfRow;
        }
    }
}

bool GapTable::isCovered(const QRectF &rect) const
{
    if (m_sums.empty())
        return false;
    const QRect pixels = rect.intersected(m_area).toAlignedRect();
    const int left = pixels.left();
    const int right = left + pixels.width();
    const int top = pixels.top();
    const int bottom = top + pixels.height();
    return gapsBefore(right, bottom) + gapsBefore(left, top)
           == gapsBefore(right, top) + gapsBefore(left, bottom);
}

} // namespace Ofd
