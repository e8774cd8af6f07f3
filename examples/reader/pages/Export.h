// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class Document;

/** Writes a document to a file in one of several formats. */
namespace Export {

/**
 * Writes the file; the suffix of the name selects the OFD file with its marks, plain text, or
 * otherwise PDF. On failure returns false, changes nothing, and sets @p error to one sentence.
 */
bool write(const Document &document, const QString &fileName, QString *error);

/** One sentence about what the format for that file name loses; empty if it loses nothing. */
QString lossOf(const Document &document, const QString &fileName);

} // namespace Export
