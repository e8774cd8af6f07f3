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

/**
 * Adds the inside of the other path. This takes far less time than QPainterPath::united(), but of
 * two paths the holes by the rule Qt::OddEvenFill are filled.
 */
void unite(QPainterPath &path, const QPainterPath &other);

} // namespace Ofd
