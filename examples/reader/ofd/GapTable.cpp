// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/GapTable.h"

namespace Ofd {

namespace {

bool isOpaque(const QImage &mask, const QRect &rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const uchar *line = mask.constScanLine(y);
        if (!std::all_of(line + rect.left(), line + rect.right() + 1,
                         [](uchar alpha) { return alpha == 255; }))
            return false;
    }
    return true;
}

} // namespace

void GapTable::count(const QImage &mask)
{
    m_columns = (mask.width() + side - 1) / side;
    m_rows = (mask.height() + side - 1) / side;
    m_sums.assign((std::size_t(m_columns) + 1) * (std::size_t(m_rows) + 1), 0);
    quint32 *sum = m_sums.data() + m_columns + 1;
    for (int row = 0; row < m_rows; ++row) {
        const quint32 *above = sum - m_columns - 1;
        quint32 gapsOfRow = 0;
        *sum++ = 0;
        for (int column = 0; column < m_columns; ++column) {
            const QRect block(column * side, row * side, side, side);
            gapsOfRow += isOpaque(mask, block & mask.rect()) ? 0 : 1;
            *sum++ = *++above + gapsOfRow;
        }
    }
}

} // namespace Ofd
