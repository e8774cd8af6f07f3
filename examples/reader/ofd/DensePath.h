// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QBrush;
class QPainter;
class QPainterPath;
class QPen;

/**
 * Painting of paths whose lines cross each other so often that the toolkit would take minutes.
 *
 * They look as the toolkit paints them but for the last bits of a shade. Only where lines lie over
 * each other many times in every pixel, what they enclose is coarse.
 */
namespace Ofd::DensePath {

/** Whether a path is better painted here; never for a device that is not made of pixels. */
bool isDense(const QPainter &painter, const QPainterPath &path);

void fill(QPainter &painter, const QPainterPath &path, const QBrush &brush);
void stroke(QPainter &painter, const QPainterPath &path, const QPen &pen);

/** Has @p paint paint, with another painter of the same space, what shows inside the path only. */
void paintInside(QPainter &painter, const QPainterPath &path,
                 const std::function<void(QPainter &)> &paint);

} // namespace Ofd::DensePath
