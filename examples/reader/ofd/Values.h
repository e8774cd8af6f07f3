// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QString>
#include <QStringView>
#include <QTransform>
#include <QVector>

/** The values that stand in attributes. All throw a Fault for numbers beyond all measure. */
namespace Ofd::Values {

/** @p otherwise for what is not a number. */
qreal number(QStringView text, qreal otherwise);
/** Numbers apart by blanks; ends at the first that is none. "#1F" is read to the base of 16. */
QVector<qreal> numbers(QStringView text);
/** "x y width height"; null if that is not what it says. */
QRectF box(const QString &text);
/** "a b c d e f"; the identity if that is not what it says. */
QTransform matrix(const QString &text);
/** "x y". */
QPointF point(const QString &text, QPointF otherwise);

/** Distances between characters, "g n v" standing for n times v; at most @p most of them. */
QVector<qreal> deltas(const QString &text, int most);

} // namespace Ofd::Values
