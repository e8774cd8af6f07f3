// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPen>
#include <QPolygonF>

namespace Ofd {

/** The dashes of a line that is drawn with a pen, whose width must not be zero. */
QList<QPolygonF> dashesOf(const QPolygonF &line, const QPen &pen);

} // namespace Ofd
