// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QBrush;
class QPainter;
class QPainterPath;
class QPen;

/**
 * Painting of paths whose lines cross each other so often that Qt would take minutes.
 *
 * The result is that of Qt, with rounding differences. Only where lines overlap many times in every
 * pixel, the enclosed area is coarse.
 */
namespace Ofd::DensePath {

/** Whether a path should be painted here; false for devices without pixels, such as PDF files. */
bool isDense(const QPainter &painter, const QPainterPath &path);

/** Whether the lines of a path, which need not be dense, are painted here sooner than by Qt. */
bool isCompact(const QPainter &painter, const QPainterPath &path);

void fill(QPainter &painter, const QPainterPath &path, const QBrush &brush);
void stroke(QPainter &painter, const QPainterPath &path, const QPen &pen);

/** Calls @p paint with a painter of the same coordinates, and shows the result inside the path. */
void paintInside(QPainter &painter, const QPainterPath &path,
                 const std::function<void(QPainter &)> &paint);

} // namespace Ofd::DensePath
