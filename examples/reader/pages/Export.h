// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class Document;

/** Writes a document where other programs can read it. */
namespace Export {

/**
 * By the end of the name: the OFD package as it was opened, plain text, or else PDF. Returns false
 * if it cannot be written.
 */
bool write(const Document &document, const QString &fileName);

/** Whether the format of that name keeps the marks. */
bool keepsMarks(const QString &fileName);

} // namespace Export
