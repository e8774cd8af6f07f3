// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QPixmap>

class QPainter;
class QPainterPath;

/** The pictures of colours, opacities and strokes that the handwriting dialog shows. */
namespace InkPictures {

inline constexpr QSize swatchIconSize(35, 35);
inline constexpr QSize opacityIconSize(44, 26);

QPixmap transparentPixmap(const QSize &size, qreal devicePixelRatio);

/** A colour, with a tick while its button is checked and a ring while it has the focus. */
QIcon swatchIcon(const QColor &colour, qreal devicePixelRatio);

/** A ground on which translucent ink can be told from pale ink; a darker one for pale ink. */
void paintChequeredGround(QPainter &painter, const QRect &area, const QColor &ink);

/** The ink on that ground. @param opacity from 0 to 1 */
QIcon opacityIcon(QColor ink, qreal opacity, qreal devicePixelRatio);

/** A stroke of the pen across an area of that size. */
QPainterPath sampleStroke(const QSizeF &size);

} // namespace InkPictures
