// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageLayout.h"

#include <algorithm>
#include <utility>

namespace {

using Sizes = std::function<QSizeF(int page)>;

/** The size of pages side by side; beside a single page the space of another one stays free. */
QSizeF roomOfRow(const Sizes &sizeOf, int pageCount, int first, int perRow)
{
    QSizeF room(0, 0);
    for (int column = 0; column < perRow; ++column) {
        const QSizeF size = sizeOf(first + column < pageCount ? first + column : first);
        room.rwidth() += size.width() + (column > 0 ? PageLayout::gap : 0);
        room.rheight() = std::max(room.height(), size.height());
    }
    return room;
}

} // namespace

PageLayout PageLayout::of(LayoutMode mode, int pageCount, const Sizes &sizeOf, int currentPage,
                          QSizeF view)
{
    PageLayout layout;
    const int perRow = layout.perRow = pagesPerRow(mode);
    const int firstOfRow = currentPage - currentPage % perRow;
    const int first = isFlow(mode) ? 0 : firstOfRow;
    const int last = isFlow(mode) ? pageCount : std::min(pageCount, firstOfRow + perRow);

    QVector<QSizeF> rooms;
    QSizeF all(0, gap);
    for (int row = first; row < last; row += perRow) {
        const QSizeF room = roomOfRow(sizeOf, pageCount, row, perRow);
        rooms.append(room);
        all = QSizeF(std::max(all.width(), room.width()), all.height() + room.height() + gap);
    }
    layout.desk = QSizeF(std::max(view.width(), all.width() + 2 * gap),
                         std::max(view.height(), all.height()));

    qreal top = (layout.desk.height() - all.height()) / 2 + gap;
    for (const QSizeF &room : std::as_const(rooms)) {
        const int row = first + int(layout.tops.size()) * perRow;
        layout.tops.append(top);
        qreal left = (layout.desk.width() - room.width()) / 2;
        for (int page = row; page < std::min(last, row + perRow); ++page) {
            const QSizeF size = sizeOf(page);
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
    const int index = places.isEmpty() ? -1 : page - places.first().page;
    return index >= 0 && index < places.size() ? places.at(index).rect : QRectF();
}

QVector<PageLayout::Place> PageLayout::placesAround(qreal top, qreal bottom) const
{
    const auto firstBelow = std::upper_bound(tops.cbegin(), tops.cend(), top);
    const auto firstAfter = std::upper_bound(tops.cbegin(), tops.cend(), bottom);
    // The row before the first below the height may contain it.
    const int first = std::max(0, int(firstBelow - tops.cbegin()) - 2);
    const int end = int(firstAfter - tops.cbegin()) + 1;
    return places.mid(first * perRow, (end - first) * perRow);
}

int PageLayout::mainPageOf(const QRectF &part) const
{
    int best = -1;
    qreal largest = 0;
    const QVector<Place> near = placesAround(part.top(), part.bottom());
    for (const Place &place : near) {
        const QRectF common = place.rect.intersected(part);
        const qreal area = common.width() * common.height();
        if (area > largest) {
            largest = area;
            best = place.page;
        }
    }
    return best;
}
