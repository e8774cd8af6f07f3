// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class Document;

/** Writes a document to a file in one of several formats. */
namespace Export {

/**
 * Writes the file; the suffix of the name selects the OFD file as it was opened, plain text, PNG,
 * or otherwise PDF. PNG gives a picture of each page; those of several pages have numbers before
 * the suffix and must not exist. Returns false on failure.
 */
bool write(const Document &document, const QString &fileName);

/** Whether the format for that file name includes the marks. */
bool keepsMarks(const QString &fileName);

} // namespace Export
