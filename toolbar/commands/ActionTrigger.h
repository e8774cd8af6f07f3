// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QAction;

/**
 * Triggers the action whether it is enabled or not: it toggles if it is checkable, its exclusive
 * group follows, and triggered() is emitted.
 *
 * QAction::trigger() does so for a disabled action on Qt 5 and does nothing on Qt 6.
 */
void triggerAction(QAction *action);
