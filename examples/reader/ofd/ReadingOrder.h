// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QVector>

namespace Ofd {

/**
 * The order in which a person reads pieces of lines: from top to bottom and from left to right, and
 * columns of running text one after the other. Texts across columns, such as headings, separate
 * what is above from what is below them. The cells of a table are read row by row.
 */
QVector<int> readingOrder(const QVector<QRectF> &pieces);

} // namespace Ofd
