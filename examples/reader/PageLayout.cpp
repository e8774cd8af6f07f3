#include "PageLayout.h"

#include <algorithm>

PageLayout PageLayout::of(LayoutMode mode, int pageCount, int currentPage, QSizeF size, QSizeF view)
{
    const int perRow = pagesPerRow(mode);
    const int firstOfRow = currentPage - currentPage % perRow;
    const int first = isFlow(mode) ? 0 : firstOfRow;
    const int last = isFlow(mode) ? pageCount : std::min(pageCount, firstOfRow + perRow);
    const int rows = (last - first + perRow - 1) / perRow;

    const qreal rowWidth = perRow * size.width() + (perRow - 1) * gap;
    const qreal height = rows * size.height() + (rows + 1) * gap;
    PageLayout layout;
    layout.desk =
        QSizeF(std::max(view.width(), rowWidth + 2 * gap), std::max(view.height(), height));

    const qreal left = (layout.desk.width() - rowWidth) / 2;
    const qreal top = (layout.desk.height() - height) / 2 + gap;
    for (int page = first; page < last; ++page) {
        const int row = (page - first) / perRow;
        const int column = (page - first) % perRow;
        const QPointF corner(left + column * (size.width() + gap),
                             top + row * (size.height() + gap));
        layout.places.append({page, QRectF(corner, size)});
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
