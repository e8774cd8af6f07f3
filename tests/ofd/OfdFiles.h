// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QImage>
#include <QString>

/** OFD files for tests, above all those that make_ofd.py makes from the folder features/. */
namespace OfdFiles {

constexpr int pixelsPerMillimetre = 4;

/** The made file of that name. */
QString path(const QString &name);

/** Opens the file of that name; a test that gets nothing has failed and says why. */
std::shared_ptr<const Ofd::Document> opened(const QString &name);

/** Opens an archive; says why if it cannot. */
std::shared_ptr<const Ofd::Document> read(const QByteArray &archive);

/** The archive with another text in one of its entries; empty if the old one is not there. */
QByteArray replaced(const Ofd::Document &document, const QString &entry, const QByteArray &from,
                    const QByteArray &to);

QImage painted(const std::shared_ptr<const Ofd::Document> &document, int page = 0);

/**
 * How the picture differs from the kept one of that name; empty if it looks the same. With
 * OFD_KEEP_PICTURES in the environment the picture is kept instead.
 */
QString difference(const QImage &picture, const QString &name);

} // namespace OfdFiles
