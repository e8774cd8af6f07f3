// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>

class QMainWindow;
class QRect;

/** What the user sees of a window. */
namespace Screen {

/** Takes the pointer away from every control. */
void restPointer(QMainWindow &window);

/** The part of the screen, when everything on it has been painted. */
QPixmap picture(const QMainWindow &window, const QRect &area);

} // namespace Screen
