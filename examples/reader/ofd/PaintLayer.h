// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QPainter;

/** Painting of several things as one: they cover each other before the opacity applies. */
namespace Ofd::PaintLayer {

/**
 * Calls @p paint with an opaque painter of the same coordinates, and shows the result with the
 * opacity and the clip of @p painter.
 */
void paint(QPainter &painter, const std::function<void(QPainter &)> &paint);

} // namespace Ofd::PaintLayer
