// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>

namespace Ofd {

/**
 * The path of abbreviated data: M and S begin a subpath, L draws a line, Q and B draw curves, A an
 * arc of an ellipse, C closes. It ends before the first unknown or incomplete command, and then
 * sets
 * @p isWhole to false.
 */
QPainterPath pathFromData(const QString &data, bool *isWhole = nullptr);

/** What is inside of any of the two; very long paths are joined by a faster and coarser rule. */
QPainterPath united(const QPainterPath &one, const QPainterPath &other);

} // namespace Ofd
