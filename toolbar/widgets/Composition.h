// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** What the windowing system does with windows that are partly transparent. */
namespace Composition {

/**
 * Whether what lies beneath a window shows through it. Asked anew at each call, as users may start
 * and stop what composes; this takes a connection to an X server.
 */
bool isActive();

/** Whether a window is seen without a shadow unless somebody puts another window around it. */
bool lacksShadows();

} // namespace Composition
