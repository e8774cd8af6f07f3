// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPolygonF>
#include <QRectF>

class QPainterPath;
class QTransform;

namespace Ofd {

/** A curve becomes at most two to this power lines. */
constexpr int mostHalvings = 12;

/**
 * The subpaths of a path as lines in device pixels. Curves are accurate inside the area; a part
 * beyond one of its sides may become a straight line.
 */
QList<QPolygonF> flattened(const QPainterPath &path, const QTransform &toDevice, const QRectF &area,
                           int halvings = mostHalvings);

} // namespace Ofd
