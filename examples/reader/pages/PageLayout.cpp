// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageLayout.h"

#include <algorithm>

namespace {

/** The size of pages side by side; beside a single page the space of another one stays free. */
QSizeF roomOfRow(const QList<QSizeF> &sizes, int first, int perRow)
{
    QSizeF room(0, 0);
    for (int column = 0; column < perRow; ++column) {
        const QSizeF size = sizes.value(first + column, sizes.at(first));
        room.rwidth() += size.width() + (column > 0 ? PageLayout::gap : 0);
        room.rheight() = std::max(room.height(), size.height());
    }
    return room;
}

} // namespace

PageLayout PageLayout::of(LayoutMode mode, const QList<QSizeF> &sizes, int currentPage, QSizeF view)
{
    const int perRow = pagesPerRow(mode);
    const int pageCount = int(sizes.size());
    const int firstOfRow = currentPage - currentPage % perRow;
    const int first = isFlow(mode) ? 0 : firstOfRow;
    const int last = isFlow(mode) ? pageCount : std::min(pageCount, firstOfRow + perRow);

    QSizeF all(0, gap);
    for (int page = first; page < last; page += perRow) {
        const QSizeF room = roomOfRow(sizes, page, perRow);
        all = QSizeF(std::max(all.width(), room.width()), all.height() + room.height() + gap);
    }
    PageLayout layout;
    layout.desk = QSizeF(std::max(view.width(), all.width() + 2 * gap),
                         std::max(view.height(), all.height()));

    qreal top = (layout.desk.height() - all.height()) / 2 + gap;
    for (int row = first; row < last; row += perRow) {
        const QSizeF room = roomOfRow(sizes, row, perRow);
        qreal left = (layout.desk.width() - room.width()) / 2;
        for (int page = row; page < std::min(last, row + perRow); ++page) {
            const QSizeF size = sizes.at(page);
            const qreal middle = top + (room.height() - size.height()) / 2;
            layout.places.append({page, QRectF(QPointF(left, middle), size)});
            left += size.width() + gap;
        }
        top += room.height() + gap;
    }
    return layout;
}

QRectF PageLayout::rectOf(int page) const
{
    for (const Place &place : places) {
        if (place.page == page)
            return place.rect;
    }
    return QRectF();
}

int PageLayout::mainPageOf(const QRectF &part) const
{
    int best = -1;
    qreal largest = 0;
    for (const Place &place : places) {
        const QRectF common = place.rect.intersected(part);
        const qreal area = common.width() * common.height();
        if (area > largest) {
            largest = area;
            best = place.page;
        }
    }
    return best;
}
