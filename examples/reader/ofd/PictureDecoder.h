// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

namespace Ofd {

/** Reads pictures of a format that Qt does not have, if the reader was built with its library. */
struct PictureDecoder
{
    const char *name; ///< Of the format, for the user.
    bool (*isOne)(const QByteArray &bytes);
    /** Whether the header is sound and the library may decode a picture of its size. */
    bool (*isReadable)(const QByteArray &bytes) = [](const QByteArray &) { return false; };
    /** The picture; null if it cannot be decoded. */
    QImage (*decoded)(const QByteArray &bytes) = [](const QByteArray &) { return QImage(); };
};

/** Files and bare codestreams; at a lower resolution if a picture would take too much memory. */
extern const PictureDecoder jpeg2000;
/**
 * Bilevel pictures of scanners: whole files, and the bare segments that are usual in documents. Of
 * several pages it is the first one.
 */
extern const PictureDecoder jbig2;

} // namespace Ofd
