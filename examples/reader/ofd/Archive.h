// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Package.h"

#include <QMap>

/** Writing of the archive of a document. */
namespace Ofd::Archive {

/**
 * A copy of the archive of a package with some entries replaced and new ones added at its end. All
 * others keep their order, names, dates and packed bytes. Throws a Fault if the archive cannot be
 * copied.
 */
QByteArray withEntries(const Package &package, const QMap<QString, QByteArray> &entries);

} // namespace Ofd::Archive
