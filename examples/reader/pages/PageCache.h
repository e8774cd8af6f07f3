// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/TilePainter.h"

#include <QCache>
#include <QObject>

/**
 * Painted parts of the pages of one file, limited to the size of some screens.
 *
 * Missing parts are painted in another thread. Until then a part shows the page as it was painted
 * last in another scale, or a small picture of the page, or only paper.
 */
class PageCache : public QObject
{
    Q_OBJECT

public:
    /** A page with the settings of the view. */
    struct Sheet
    {
        const PageContent *content = nullptr;
        QSizeF size; ///< Without rotation, in page units.
        qreal scale = 1;
        int quarters = 0;
        qreal ratio = 1; ///< Device pixels for a pixel of the view.
        PageColours colours;
    };

    explicit PageCache(QObject *parent = nullptr);

    /** Draws the part of a page inside the clip of @p painter; @p place is that of the page. */
    void draw(QPainter &painter, const Sheet &sheet, const QRectF &place);
    /** Prepares the part of a page that is in the window, to be shown soon. */
    void prepare(const Sheet &sheet, const QRectF &place, const QRectF &window);
    /** Asks for what draw() and prepare() missed since the last call, and for nothing else. */
    void request();
    /** Whether the last request() found that everything drawn was sharp. */
    bool isSharp() const { return m_isSharp; }

    /** A small picture of a page; null until it is painted, which request() asks for. */
    QImage preview(const Sheet &sheet);

    /** Forgets all pages. What is being painted is not used any more. */
    void clear();

Q_SIGNALS:
    /** More can be drawn. */
    void changed();

private:
    void drawStandIn(QPainter &painter, const Sheet &sheet, QPoint corner, const Tile &tile);
    void noteScale(qreal scale);
    void want(QVector<Tile> &list, const Sheet &sheet, const Tile &tile);
    void take();

    QCache<QString, QImage> m_tiles; ///< With the previews. Costs are in kilobytes.
    TilePainter *m_painter = nullptr;
    // What is missing.
    QVector<Tile> m_shownPreviews;
    QVector<Tile> m_shownTiles;
    QVector<Tile> m_soonShown;
    // In device pixels for a page unit.
    qreal m_scale = 0;
    qreal m_earlierScale = 0;
    bool m_hasDrawnTile = false; ///< In the present scale.
    bool m_isSharp = false;
};
