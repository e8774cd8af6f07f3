// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"
#include "ofd/XmlElement.h"

/** The signatures of a document and the seals that they put on its pages. */
namespace Ofd::Signatures {

/**
 * Lists the signatures and places their seals; @p pages maps identifiers of pages to their indexes.
 * A signature is not needed for reading, so a seal that cannot be drawn is counted as left out.
 */
void read(const XmlElement &body, const QString &from, const QHash<QString, int> &pages,
          Document &document);

/** The entry that a text in the description of a signature names; throws a Fault without it. */
QByteArray readNamed(const Package &package, const QString &location, const QString &from);

} // namespace Ofd::Signatures
