// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QHash>
#include <QString>

#include <quazip/quazip.h>

namespace Ofd {

/** The archive that a document lives in; it is kept whole, whatever happens to its file. */
class Package
{
public:
    /** Throws a Fault for a file that is no archive, is encrypted, or would unpack without end. */
    explicit Package(const QString &fileName);

    /** The whole archive as it was read. */
    const QByteArray &archive() const { return m_archive; }

    bool has(const QString &path) const { return m_sizes.contains(path); }
    /** Throws a Fault for an entry that is missing or damaged. */
    QByteArray read(const QString &path) const;

    /**
     * The entry that a location in the file @p from means: absolute from the root of the archive,
     * else from the folder of that file, and if nothing is there, from the root after all. Empty
     * if there is no such entry. Throws a Fault for a location outside the archive.
     */
    QString find(const QString &from, const QString &location) const;

    /** A location without "." and ".."; throws a Fault for one that climbs out of the archive. */
    static QString normalised(const QString &location);

private:
    void list();
    void check(const QuaZipFileInfo64 &entry) const;

    QByteArray m_archive;
    mutable QBuffer m_buffer;
    mutable QuaZip m_zip;
    QHash<QString, qint64> m_sizes; ///< By path; a folder has no entry of its own here.
};

} // namespace Ofd
