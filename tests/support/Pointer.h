// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

class QWidget;

/** Away from every window, so that nothing is hovered over before a test says so. */
void movePointerAway();

/** Turns the wheel over the middle of a widget, as the windowing system would report it. */
void turnWheel(QWidget *target, const QPoint &delta);

/** Places on a split button: the part that repeats a command and the part that opens the menu. */
QPoint bodyOf(const QWidget *button);
QPoint arrowOf(const QWidget *button);
