// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

#include <QPainterPath>

/** The outline of a shape between the two end points of the mark; empty for other marks. */
QPainterPath shapePath(const Mark &mark);

/** A wavy line from @p left to @p right at height @p y. */
QPainterPath wavePath(qreal left, qreal right, qreal y);
