// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** The number of heap allocations of this process so far, including those of all libraries. */
long allocationCount();
