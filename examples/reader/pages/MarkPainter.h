// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

#include <QList>

class QPainter;

/** Paints a mark in page units. */
void paintMark(QPainter &painter, const Mark &mark);

/** The rectangles of the text that a mark is for. */
QList<QRectF> textRectsOf(const Mark &mark);
