// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** What assistive technology is told of tabs and of the list that they are in. */
namespace TabAccess {

/**
 * Has Qt ask for this description of every TabButton and TabList; all other objects are left to
 * Qt. To be called before the first of them can be asked about; further calls do nothing. It stays
 * installed, as the library stays loaded, until the application ends.
 */
void install();

} // namespace TabAccess
