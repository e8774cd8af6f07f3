// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

class QPainter;

/** Draws seals, stamps, notes and whatever else is more than an outline. */
namespace StampPainter {

/** Returns false for the marks that it does not draw. */
bool paint(QPainter &painter, const Mark &mark);

} // namespace StampPainter
