// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

struct SourceDocument;

/** Sets the role of every element of the document except the root. */
void assignRoles(SourceDocument &document);
