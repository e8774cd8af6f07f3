// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

class Document;

/** Saving of a document as the OFD file from which it was read, with its marks and bookmarks. */
namespace OfdSaving {

/**
 * The file with all marks as annotations and with the bookmarks, or the same bytes if they have
 * not changed. Inserted pages are left out with their marks. On failure empty, and @p error is one
 * sentence.
 */
QByteArray archiveOf(const Document &document, QString *error);

/** Whether the document has other bookmarks than its file, which no other format keeps. */
bool changesBookmarks(const Document &document);

/** One sentence about what an OFD file would lose; empty if it loses nothing. */
QString lossOf(const Document &document);

} // namespace OfdSaving
