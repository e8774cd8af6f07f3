// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/ToolBarTypes.h"

#include <QStringList>

class MRToolBar;
class QMainWindow;

/**
 * Opens every tab and menu, triggers every command, types into every field and sets every state by
 * name, also those of @p names. No menu stays open.
 */
void useEverything(MRToolBar &facade, QMainWindow &window, const QStringList &names = {});

/** Makes a toolbar from the description if it is well-formed, uses everything and deletes it. */
void useDescription(const QByteArray &xml, int skin, ToolBarAlignment alignment);
