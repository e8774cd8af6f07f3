// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

struct SourceDocument;

/** Tells every element of the document, the root apart, what the library makes of it. */
void assignRoles(SourceDocument &document);
