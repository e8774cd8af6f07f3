// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/DocumentRoot.h"
#include "ofd/ResourceReader.h"

/** Annotations, which are drawn above the content of their pages. */
namespace Ofd::Annotations {

/** The lists of annotations of a document: their entries in the package by the index of the page.
 */
QHash<int, QString> lists(const Package &package, const XmlElement &root, const QString &from,
                          const QHash<QString, int> &pages);

/** Reads one of those lists. */
QVector<Annotation> read(const XmlElement &list, ObjectReader &objects);

/**
 * Reads all lists without the content of the appearances, by the index of the page. Lists that
 * cannot be read are left out.
 */
QMap<int, QVector<Annotation>> heads(const Document &document, const DocumentRoot &root);

} // namespace Ofd::Annotations
