// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>

class QMainWindow;
class QRect;

/** Pictures of a window as the user sees it. */
namespace Screen {

/** Moves the pointer away from every control. */
void restPointer(QMainWindow &window);

/** A picture of an area of the screen, taken after all pending paint events. */
QPixmap picture(const QMainWindow &window, const QRect &area);

} // namespace Screen
