// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/ResourceReader.h"

/** What a document brings along besides its pages. */
namespace Ofd::Extras {

/** The title, the dates and what else the element of general information tells. */
void readInformation(const XmlElement &information, Document &document);

/** Outline and bookmarks; @p pages gives the index of a page by its identifier. */
void readTargets(const XmlElement &root, const QHash<QString, int> &pages, Document &document);

/** Puts the appearances of annotations on their pages. */
void readAnnotations(const XmlElement &root, const QString &from, const QHash<QString, int> &pages,
                     Document &document, ObjectReader &objects);

/** The names of the attached files. */
void readAttachments(const XmlElement &root, const QString &from, Document &document);

/** Seals are not shown; tells how many there are. */
void countSeals(const XmlElement &body, const QString &from, Document &document);

} // namespace Ofd::Extras
