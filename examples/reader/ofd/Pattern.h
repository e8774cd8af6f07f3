// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Ink.h"
#include "ofd/Objects.h"

#include <functional>

namespace Ofd {

/** Cells side by side, in rows and columns. */
struct Pattern
{
    QSizeF size;                   ///< Of the cell; nothing outside of it is visible.
    QSizeF step;                   ///< From one cell to the next ones; not less than the size.
    bool mirrorsColumns = false;   ///< Every second column is mirrored from left to right.
    bool mirrorsRows = false;      ///< Every second row is mirrored from top to bottom.
    bool isRelativeToPage = false; ///< The first cell is at the origin of the page.
    QTransform matrix;             ///< Of all cells in their places.
    qreal alpha = 1;
    Objects cell;
};

/** Prepares a pattern for one shape. */
class PatternPainter
{
public:
    using PaintCell = std::function<void(QPainter &)>;

    /** @p toObject leads from the coordinates that the pattern is relative to to the object's. */
    PatternPainter(const Pattern &pattern, const QTransform &toObject, PaintCell paintCell);

    /** With one cell as the picture of a brush. The cell is painted once. */
    Ink tiles(const QPainter &painter, const QRectF &bounds) const;
    /**
     * With a picture of all cells inside of @p bounds, which is sharper than tiles() for large
     * cells; nothing if there are more than a few cells.
     */
    std::optional<Ink> fewCells(const QPainter &painter, const QRectF &bounds) const;

private:
    QTransform placeOf(int column, int row) const;
    QImage cellImage(const QSize &pixels, const QPainter &painter) const;
    QImage mirrored(const QImage &cell) const;
    void fade(QImage &image) const;

    const Pattern &m_pattern;
    QTransform m_toObject; ///< From the coordinates of the cells in their places.
    PaintCell m_paintCell;
    QSize m_period; ///< In cells.
};

} // namespace Ofd
