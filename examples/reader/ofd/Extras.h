// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/ResourceReader.h"

/** Readers for the parts of a document besides its pages. */
namespace Ofd::Extras {

/** Parses the file that a child of the element names; nothing if there is no such file. */
std::optional<XmlElement> namedFile(const Package &package, const XmlElement &parent,
                                    const char *name, const QString &from, QString *path);

/** Reads the title, the dates and the other entries of the element for general information. */
void readInformation(const XmlElement &information, Document &document);

/** Reads outline and bookmarks; @p pages maps identifiers of pages to their indexes. */
void readTargets(const XmlElement &root, const QHash<QString, int> &pages, Document &document);

/** Reads the names of the attached files. */
void readAttachments(const XmlElement &root, const QString &from, Document &document);

} // namespace Ofd::Extras
