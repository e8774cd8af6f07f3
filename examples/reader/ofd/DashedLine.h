// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPen>
#include <QPolygonF>

namespace Ofd {

/** What the dashes of a pen, which is as wide as it says, leave of a line. */
QList<QPolygonF> dashesOf(const QPolygonF &line, const QPen &pen);

} // namespace Ofd
