// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

class MRToolBarCommands;
class QWidget;

/** The menu of the right mouse button on the pages. */
namespace PageMenu {

/** Shows the menu with the commands for a selection, or with those for the view without one. */
void show(QWidget *parent, QPoint place, MRToolBarCommands &commands, bool hasSelection);

} // namespace PageMenu
