// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Objects.h"

class QPainter;

/** What depends on the pixels that a painter draws on. */
namespace Ofd {

/** In device pixels; thinner lines would be visible at some zooms only. */
constexpr qreal leastLineWidth = 0.7;

/** The pixels for a unit of the painter. */
qreal scaleOf(const QPainter &painter);
/** The whole device in its pixels. */
QRectF deviceRect(const QPainter &painter);
bool isOnDevice(const QPainter &painter, const QRectF &rect);

/**
 * Clips to a rectangle that is extended to whole pixels, so that what ends at its edges stays as it
 * is, and Qt need not smooth the edges. A rectangle that is turned by an odd angle stays the same.
 */
void clipTo(QPainter &painter, const QRectF &rect);

/** The pen of a style, wide enough to be seen. */
QPen visiblePen(const QPainter &painter, const Style &style, const QPainterPath &path);

/** Lengths of the sides of the unit square under a transform. */
QSizeF sizeOf(const QTransform &transform);

} // namespace Ofd
