// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/PagePainter.h"

#include <QCache>
#include <QImage>

/** Parts of pages as they were painted last; it holds what some screens need, and no more. */
class PageCache
{
public:
    /** A page as the view shows it. */
    struct Sheet
    {
        const PageContent *content = nullptr;
        QSizeF size; ///< Unturned, in page units.
        qreal scale = 1;
        int quarters = 0;
    };

    PageCache();

    /** Paints what of the page is inside the clip of @p painter; @p place is where it lies. */
    void paint(QPainter &painter, const Sheet &sheet, const QRectF &place,
               const PageColours &colours);
    void clear() { m_tiles.clear(); }

private:
    QImage tile(const Sheet &sheet, QPoint corner, qreal ratio, const PageColours &colours);

    QCache<QString, QImage> m_tiles; ///< Costs are kilobytes.
};
