// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Link.h"
#include "ofd/XmlElement.h"

#include <QHash>
#include <QVector>

/** Reading of the actions of objects. Actions that no click starts are left out. */
namespace Ofd::Links {

/** The links of all objects inside an element whose objects are placed from @p origin. */
QVector<Link> read(const XmlElement &parent, QPointF origin);

/** The destination of an element that has one inside; nothing without a page. */
std::optional<Destination> destinationIn(const XmlElement &element);

/** The destinations of the bookmarks of a document by their names. */
QHash<QString, Destination> bookmarks(const XmlElement &document);

} // namespace Ofd::Links
