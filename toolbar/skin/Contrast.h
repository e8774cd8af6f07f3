// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

/** How well colours can be told apart, as the guidelines for accessible content measure it. */
namespace Contrast {

/** The ratio of the two luminances, from 1 for equal ones to 21 for black and white. */
double ratio(const QColor &one, const QColor &other);

/** Whether white stands out from the colour better than black. */
bool isDark(const QColor &colour);

/** @p share of the second colour in the first, from 0 to 1. */
QColor mixed(const QColor &first, const QColor &second, double share);

/**
 * The colour itself, or the least light one of its hue that reaches @p ratio on @p ground; white
 * if none does.
 */
QColor lightened(const QColor &colour, const QColor &ground, double ratio);

/** The colour with as much of @p end in it as it takes to reach @p ratio with @p other. */
QColor towards(const QColor &colour, const QColor &end, const QColor &other, double ratio);

/** Black or white, whichever is read better on the ground. */
QColor textOn(const QColor &ground);

} // namespace Contrast
