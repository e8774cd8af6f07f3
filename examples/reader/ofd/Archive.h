// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/** Writing of the archive of a document. */
namespace Ofd::Archive {

/**
 * A copy of an archive with some entries replaced and new ones added at its end. All others keep
 * their order, names, dates and packed bytes. Throws a Fault if the archive cannot be copied.
 */
QByteArray withEntries(QByteArray archive, QMap<QString, QByteArray> entries);

} // namespace Ofd::Archive
