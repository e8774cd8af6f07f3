// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>
#include <QString>

/** The descriptions for tests of whole toolbars. */
namespace TestDocuments {

/** A description that is shipped, such as "marodi/mr_toolbar.release.xml". */
QString shippedPath(const QString &name);

QByteArray content(const QString &path);

/** The description in a file; ends the test program if it cannot be read. */
QDomDocument read(const QString &path);

/** The columns "skin" and "path" with a row for each shipped description. */
void addShipped();

/** The same, and the reader's showcase.xml, which has every control, in both skins. */
void addAll();

} // namespace TestDocuments
