// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>

namespace Ofd {

/**
 * The path that abbreviated data describes: M and S begin, L draws a line, Q and B curves, A an arc
 * of an ellipse, C closes. It ends before the first command that is unknown or incomplete.
 */
QPainterPath pathFromData(const QString &data);

} // namespace Ofd
