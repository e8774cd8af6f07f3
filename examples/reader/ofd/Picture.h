// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/** Decoding of pictures by their content; the suffix and the declared format may be wrong. */
namespace Ofd::Picture {

/**
 * How the picture is named among the parts that are left out; empty if its header is sound, its
 * size allowed and its format known. The first bytes of the file can be enough.
 */
QString faultOf(const QByteArray &bytes);

/** The picture; a smaller one if it would take too much memory; null if it cannot be decoded. */
QImage decoded(const QByteArray &bytes);

} // namespace Ofd::Picture
