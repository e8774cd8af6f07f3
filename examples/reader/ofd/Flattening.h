// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPolygonF>
#include <QRectF>

class QPainterPath;
class QTransform;

namespace Ofd {

/**
 * The subpaths of a path as lines in device pixels. Curves are accurate inside the area; a part
 * beyond one of its sides may become a straight line. A path of very many curves, which can only be
 * small or overlap, gets few lines for each.
 */
QList<QPolygonF> flattened(const QPainterPath &path, const QTransform &toDevice,
                           const QRectF &area);

} // namespace Ofd
