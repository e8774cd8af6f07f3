// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/** Bilevel pictures of scanners: whole files, and the bare segments that are usual in documents. */
namespace Ofd::Jbig2 {

/** Whether the bytes begin with a file header, or with segments up to the size of the page. */
bool isOne(const QByteArray &bytes);

/** Whether the size is allowed and the reader was built with the decoder. */
bool isReadable(const QByteArray &bytes);

/** The first page; null if it cannot be decoded. */
QImage decoded(const QByteArray &bytes);

} // namespace Ofd::Jbig2
