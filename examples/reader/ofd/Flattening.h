// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPolygonF>
#include <QRectF>

class QPainterPath;
class QTransform;

namespace Ofd {

/** How fine a curve may get: into two to the power of so many lines. */
constexpr int mostHalvings = 12;

/**
 * The subpaths of a path as lines in device pixels. Curves are as fine as the area needs; what lies
 * beyond one of its sides may be a straight line there.
 */
QList<QPolygonF> flattened(const QPainterPath &path, const QTransform &toDevice, const QRectF &area,
                           int halvings = mostHalvings);

} // namespace Ofd
