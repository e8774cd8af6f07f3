// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/**
 * Makes a toolbar of the description, if it is well-formed, opens every tab and menu, fires every
 * command, sets every state by name, and deletes it. No menu is left to wait for the user.
 *
 * Skin and alignment follow from the description itself, so that a run can be repeated.
 */
void useDescription(const QByteArray &xml);
