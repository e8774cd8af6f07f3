// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

#include <QList>

class QPainter;

/** Draws a mark in page units. */
void paintMark(QPainter &painter, const Mark &mark);

/** The rectangles of a mark that stands on a range of text. */
QList<QRectF> textRectsOf(const Mark &mark);
