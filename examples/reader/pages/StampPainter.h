// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

class QPainter;

/** Paints seals, stamps, notes and the other marks that are more than an outline. */
namespace StampPainter {

/** Paints a mark; returns false for a kind that it does not paint. */
bool paint(QPainter &painter, const Mark &mark);

} // namespace StampPainter
