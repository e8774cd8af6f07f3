// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

#include <QPainterPath>

/** The outline of a drawn shape between the two ends of the mark; empty for other marks. */
QPainterPath shapePath(const Mark &mark);

/** A path of waves from @p left to @p right at height @p y, for wavy lines. */
QPainterPath wavePath(qreal left, qreal right, qreal y);
