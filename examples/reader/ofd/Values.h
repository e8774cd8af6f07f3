// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QString>
#include <QStringView>
#include <QTransform>
#include <QVector>

/** Reading of values in attributes. All functions throw a Fault for numbers above the limits. */
namespace Ofd::Values {

/** The number; @p otherwise for a text that is not a number. */
qreal number(QStringView text, qreal otherwise);
/** Numbers separated by blanks, up to the first invalid one. "#1F" is hexadecimal. */
QVector<qreal> numbers(QStringView text);
/** The rectangle "x y width height"; null for another text. */
QRectF box(const QString &text);
/** The matrix "a b c d e f"; the identity for another text. */
QTransform matrix(const QString &text);
/** The point "x y"; @p otherwise for another text. */
QPointF point(const QString &text, QPointF otherwise);

/** Distances between characters; "g n v" means n times v. Returns at most @p most values. */
QVector<qreal> deltas(const QString &text, int most);

} // namespace Ofd::Values
