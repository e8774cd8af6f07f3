// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/** Makes OFD files in which a test may replace or remove any entry. */
namespace PackageMaker {

using Entries = QMap<QString, QByteArray>;

/** The entry with the content of a page. */
QString pagePath(int page);

/** A document with pages of about a kilobyte, whose text names the page, counted from 1. */
Entries documentOf(int pages);

/** The content of a page with this text, on a sheet of its own if a size is given. */
QByteArray pageOf(const QString &text, const QString &box = QString());

QByteArray archive(const Entries &entries);

bool write(const QString &fileName, const QByteArray &bytes);

/** What is in a file; nothing if it cannot be read. */
QByteArray bytesOf(const QString &fileName);

} // namespace PackageMaker
