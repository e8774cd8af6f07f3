// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QAction;

/** The small set of bits that every action of the toolbar carries in its data. */
namespace ActionData {

inline constexpr int available = 0x01;   ///< Its enabled state follows the host.
inline constexpr int doubleClick = 0x10; ///< A second click within the wait is reported as such.

/** Gives the action the bits of its description. */
void set(QAction *action, bool isAvailable);
void addDoubleClick(QAction *action);

/** Whether the action's enabled state may be changed by name. */
bool isAvailable(const QAction *action);
bool reactsToDoubleClick(const QAction *action);

/** Whether the next trigger is to stay unreported. */
bool isSilent(const QAction *action);
/** Makes the next trigger silent; all bits are lost. */
void silence(QAction *action);
/** Ends the silence: from now on the action is available, and nothing else. */
void endSilence(QAction *action);

} // namespace ActionData
