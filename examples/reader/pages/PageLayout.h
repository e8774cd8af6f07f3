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

/** Where pages lie on the desk, in device-independent pixels from its top left corner. */
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
    QSizeF desk; ///< At least as large as the view that it was made for.

    /** Pages of these sizes, or those of them that the mode shows at once, centred in the view. */
    static PageLayout of(LayoutMode mode, const QList<QSizeF> &sizes, int currentPage, QSizeF view);

    /** Null if the page has no place in this layout. */
    QRectF rectOf(int page) const;
    /** The page that covers most of a part of the desk; -1 if none does. */
    int mainPageOf(const QRectF &part) const;
};
