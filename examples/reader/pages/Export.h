// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class Document;

/** Writes a document to a file in one of several formats. */
namespace Export {

/** Called with the index of the page that comes next. */
using MayGoOn = std::function<bool(int page)>;

/**
 * Writes the file; the suffix of the name selects the OFD file with its marks, plain text, PNG, or
 * otherwise PDF. PNG gives a picture of each page; those of several pages have numbers before the
 * suffix and must not exist. Asks @p mayGoOn, if there is one, before each page. On failure, or
 * where it may not go on, returns false and sets @p error to one sentence; no file is left.
 */
bool write(const Document &document, const QString &fileName, QString *error,
           const MayGoOn &mayGoOn = {});

/** The file that write() makes of that name; of several pictures the first and the last one. */
QString writtenNames(const Document &document, const QString &fileName);

/** One sentence about what the format for that file name loses; empty if it loses nothing. */
QString lossOf(const Document &document, const QString &fileName);

} // namespace Export
