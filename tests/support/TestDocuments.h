// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>
#include <QString>

/** The descriptions that tests of whole toolbars go through. */
namespace TestDocuments {

/** A description that is shipped, such as "marodi/mr_toolbar.release.xml". */
QString shippedPath(const QString &name);

QByteArray content(const QString &path);

/** The description in a file; ends the test if there is none. */
QDomDocument read(const QString &path);

/** The columns "skin" and "path" with a row for each shipped description. */
void addShipped();

/** The same, and the description that has every control, in both skins. */
void addAll();

} // namespace TestDocuments
