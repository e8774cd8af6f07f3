// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

namespace Ofd {

/**
 * Throws a Fault if composites on a page contain each other in a circle, or if it has more marks
 * than Limits::marksPerPage after the expansion of all composites.
 */
void checkExpansion(const Page &page, const Document &document);

} // namespace Ofd
