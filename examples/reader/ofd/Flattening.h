// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPolygonF>
#include <QRectF>

#include <functional>

class QPainterPath;
class QTransform;

namespace Ofd {

/**
 * Calls @p use with each subpath of a path as a line in device pixels. Curves are accurate inside
 * the area; a part beyond one of its sides may become a straight line. A path of very many curves,
 * which can only be small or overlap, gets few lines for each.
 */
void flatten(const QPainterPath &path, const QTransform &toDevice, const QRectF &area,
             const std::function<void(const QPolygonF &)> &use);

} // namespace Ofd
