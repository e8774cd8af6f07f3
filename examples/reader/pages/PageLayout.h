// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QVector>

#include <functional>

enum class LayoutMode
{
    SinglePage,
    DoublePage,
    SingleFlow,
    DoubleFlow
};

inline bool isFlow(LayoutMode mode)
{
    return mode == LayoutMode::SingleFlow || mode == LayoutMode::DoubleFlow;
}

inline int pagesPerRow(LayoutMode mode)
{
    return mode == LayoutMode::DoublePage || mode == LayoutMode::DoubleFlow ? 2 : 1;
}

/** The rectangles of the pages on a scrolled surface, in device-independent pixels. */
struct PageLayout
{
    /** Between pages, and around them. */
    static constexpr qreal gap = 16;

    struct Place
    {
        int page = 0;
        QRectF rect;
    };

    QVector<Place> places; ///< In the order of the pages, none of which is left out.
    QVector<qreal> tops;   ///< Of the rows.
    int perRow = 1;        ///< The last row may have fewer pages.
    QSizeF desk;           ///< The scrolled surface; at least as large as the view.

    /** The layout of the pages that the mode shows at once; the size is asked only for these. */
    static PageLayout of(LayoutMode mode, int pageCount,
                         const std::function<QSizeF(int page)> &sizeOf, int currentPage,
                         QSizeF view);

    /** The rectangle of a page; null if the layout does not show it. */
    QRectF rectOf(int page) const;
    /** The places in the rows between two heights, and in one more row on each side. */
    QVector<Place> placesAround(qreal top, qreal bottom) const;
    /** The page with the largest area inside a part of the surface; -1 if there is none. */
    int mainPageOf(const QRectF &part) const;
};
