// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

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

    QList<Place> places;
    QSizeF desk; ///< The scrolled surface; at least as large as the view.

    /** The layout of pages of these sizes; only those that the mode shows at once have a place. */
    static PageLayout of(LayoutMode mode, const QList<QSizeF> &sizes, int currentPage, QSizeF view);

    /** The rectangle of a page; null if the layout does not show it. */
    QRectF rectOf(int page) const;
    /** The page with the largest area inside a part of the surface; -1 if there is none. */
    int mainPageOf(const QRectF &part) const;
};
