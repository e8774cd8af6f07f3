// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class Document;

/** Writes a document to a file in one of several formats. */
namespace Export {

/**
 * Writes the file; the suffix of the name selects the OFD file with its marks, plain text, PNG, or
 * otherwise PDF. PNG gives a picture of each page; those of several pages have numbers before the
 * suffix and must not exist. On failure returns false, and sets @p error to one sentence; no file
 * is left half-written.
 */
bool write(const Document &document, const QString &fileName, QString *error);

/** One sentence about what the format for that file name loses; empty if it loses nothing. */
QString lossOf(const Document &document, const QString &fileName);

} // namespace Export
