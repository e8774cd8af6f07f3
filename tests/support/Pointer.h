// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

class QWidget;

/** Moves the pointer away from every window, so that no widget is hovered at first. */
void movePointerAway();

/** Turns the wheel over the middle of a widget, as the windowing system would report it. */
void turnWheel(QWidget *target, const QPoint &delta);

/** Positions on a split button: the body repeats a command, the arrow opens the menu. */
QPoint bodyOf(const QWidget *button);
QPoint arrowOf(const QWidget *button);
