// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/**
 * Makes a toolbar from the description if it is well-formed, opens every tab and menu, triggers
 * every command, sets every state by name and deletes the toolbar. No menu stays open.
 *
 * Skin and alignment are computed from the description, so that a run can be repeated.
 */
void useDescription(const QByteArray &xml);
