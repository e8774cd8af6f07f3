// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringView>

/** What must be known of the bytes of an XML file before a parser may read them. */
namespace Ofd::XmlBytes {

/** The file itself, or the same one in UTF-8 if it is in UTF-16. */
QByteArray inUtf8(const QByteArray &bytes);

/** Whether hasTooMuch() can read files in that encoding; empty if the file names none. */
bool isCountable(QStringView encoding);

/**
 * Whether the file has more elements and attributes than any document needs, altogether or in one
 * tag. The parser compares each attribute of a tag with all others, so that it must not see them.
 */
bool hasTooMuch(const QByteArray &bytes);

} // namespace Ofd::XmlBytes
