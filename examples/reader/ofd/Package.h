// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QString>

#include <quazip/quazip.h>

namespace Ofd {

/**
 * The archive of a document. It is kept in memory, so changes of the file have no effect. Threads
 * may share it.
 */
class Package
{
public:
    /** Throws a Fault for a file that is not an archive, is encrypted or unpacks to too much. */
    explicit Package(const QString &fileName);

    /** The whole archive as it was read. */
    const QByteArray &archive() const { return m_archive; }

    bool has(const QString &path) const { return m_sizes.contains(path); }
    /** Throws a Fault for an entry that is missing or damaged. */
    QByteArray read(const QString &path) const;

    /**
     * The entry for a location in the file @p from. A location is relative to the folder of that
     * file unless it is absolute. If there is no such entry, it is tried relative to the root.
     * Empty if both fail. Throws a Fault for a location outside the archive.
     */
    QString find(const QString &from, const QString &location) const;

    /** A location without "." and ".."; throws a Fault for one outside the archive. */
    static QString normalised(const QString &location);

private:
    void list();
    void check(const QuaZipFileInfo64 &entry) const;

    QByteArray m_archive;
    mutable QMutex m_lock; ///< Of the two that follow.
    mutable QBuffer m_buffer;
    mutable QuaZip m_zip;
    QHash<QString, qint64> m_sizes; ///< By path, without folders.
};

} // namespace Ofd
