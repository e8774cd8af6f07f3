// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"

/** The words for a mark in a list. */
namespace MarkEntry {

/** The kind, for an annotation of the file by what the file calls it. */
QString kindOf(const Mark &mark);

/** One sentence that says why a mark cannot be changed; empty if it can. */
QString refusalOf(const Mark &mark);

/** Lines with the page, the kind and whether it is hidden or read-only, with who made it when, and
 * with its text. */
QString textOf(const Mark &mark);

} // namespace MarkEntry
