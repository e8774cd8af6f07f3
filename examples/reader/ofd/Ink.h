// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QPen>

#include <functional>

class QPainter;

namespace Ofd {

/** A paint as one painter needs it for one shape. */
struct Ink
{
    QBrush brush = Qt::NoBrush;
    QPainterPath extent; ///< Where the brush shows anything; empty for everywhere.

    void fill(QPainter &painter, const QPainterPath &path) const;
    /** The brush of the pen is not used. One of many paths must take little time. */
    void stroke(QPainter &painter, const QPainterPath &path, QPen pen, bool isOneOfMany) const;

private:
    void paintInExtent(QPainter &painter, const std::function<void(const Ink &)> &paint) const;
};

} // namespace Ofd
