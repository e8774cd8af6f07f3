// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"
#include "ofd/XmlElement.h"

#include <QHash>

/** Reading of the actions of objects. Actions that no click starts are left out. */
namespace Ofd::Links {

/** The link of an object, still without an area; null if it has none. */
std::shared_ptr<const Link> of(const XmlElement &object);

/**
 * Gives a page and its annotations the links of their objects, also of those in templates and
 * composites. Call it after checkExpansion(). Returns false if Limits::linksPerPage cut them short.
 */
bool place(Page &page, const Document &document);

/** What a `Dest` element says. */
Destination destination(const XmlElement &element);
/** The same of the one inside an element; nothing without one. */
std::optional<Destination> destinationIn(const XmlElement &element);

/** The destinations of the bookmarks of a document by their names. */
QHash<QString, Destination> bookmarks(const XmlElement &document);

} // namespace Ofd::Links
