// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

namespace Ofd {

/**
 * Throws a Fault if composites contain each other in a circle, or if a page would come to more
 * objects than anyone would wait for, however few the file holds.
 */
void checkExpansion(const Document &document);

} // namespace Ofd
