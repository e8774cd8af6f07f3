// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/PagePainter.h"

#include <QCache>
#include <QImage>

/** A cache of painted parts of pages, limited to the size of some screens. */
class PageCache
{
public:
    /** A page with the settings of the view. */
    struct Sheet
    {
        const PageContent *content = nullptr;
        QSizeF size; ///< Without rotation, in page units.
        qreal scale = 1;
        int quarters = 0;
    };

    PageCache();

    /** Paints the part of a page inside the clip of @p painter; @p place is that of the page. */
    void paint(QPainter &painter, const Sheet &sheet, const QRectF &place,
               const PageColours &colours);
    void clear() { m_tiles.clear(); }

private:
    QImage tile(const Sheet &sheet, QPoint corner, qreal ratio, const PageColours &colours);

    QCache<QString, QImage> m_tiles; ///< Costs are in kilobytes.
};
