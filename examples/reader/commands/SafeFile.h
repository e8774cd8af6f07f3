// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/** What a document says of its attached files, as far as it can be trusted. */
namespace SafeFile {

/** A name without folders, control characters and the like; never empty or hidden. */
QString nameFor(const QString &name);

/**
 * Whether a file is one to look at by its name and its content. Programs, scripts and whatever is
 * not known are none.
 */
bool isHarmless(const QString &name, const QByteArray &content);

} // namespace SafeFile
