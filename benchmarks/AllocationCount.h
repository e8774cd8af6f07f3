// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** How often this process has asked the heap for memory so far; every library in it counts. */
long allocationCount();
