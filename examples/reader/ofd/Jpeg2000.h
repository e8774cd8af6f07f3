// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/** Pictures in JPEG 2000, as files or as bare codestreams. */
namespace Ofd::Jpeg2000 {

bool isOne(const QByteArray &bytes);

/** Whether the header is sound, its sizes are allowed, and the reader was built with the decoder.
 */
bool isReadable(const QByteArray &bytes);

/** The picture, at a lower resolution if it would take too much memory; null if that fails. */
QImage decoded(const QByteArray &bytes);

} // namespace Ofd::Jpeg2000
