// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>

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
    explicit Package(const QByteArray &archive);

    /** The whole archive as it was read. */
    const QByteArray &archive() const { return m_archive; }

    /** Whether there is such an entry, by its exact name or else in any case. */
    bool has(const QString &path) const { return !pathOf(path).isEmpty(); }
    QStringList entries() const { return m_entries.keys(); }
    /** Lets read() find bytes that are no entry of the archive, under a name that is none either.
     */
    void add(const QString &name, const QByteArray &bytes) { m_added.insert(name, bytes); }
    /** Throws a Fault for an entry that is missing or damaged. Any thread may read. */
    QByteArray read(const QString &path) const;
    /** Up to that many bytes from the start of an entry; fewer or none if it is damaged. */
    QByteArray readStart(const QString &path, int length) const;

    /**
     * The entry for a location in the file @p from. A location is relative to the folder of that
     * file unless it is absolute. If there is no such entry, it is tried relative to the root.
     * Backslashes, other cases and percent encoding lead to the entry as well. Empty if all fail.
     * Throws a Fault for a location outside the archive.
     */
    QString find(const QString &from, const QString &location) const;

    /** A location without "." and ".."; throws a Fault for one outside the archive. */
    static QString normalised(const QString &location);

private:
    struct Entry
    {
        QString name; ///< As the archive has it, which may contain backslashes.
        qint64 size = -1;
    };

    QList<QuaZipFileInfo64> listed();
    void list();
    static void check(const QuaZipFileInfo64 &entry, const QString &path);
    QString pathOf(const QString &path) const;
    QString findPlain(const QString &from, const QString &location) const;
    QByteArray unpack(const QString &path, qint64 most) const;

    QByteArray m_archive;
    mutable QBuffer m_buffer;
    mutable QuaZip m_zip;
    mutable QMutex m_mutex;
    QHash<QString, Entry> m_entries;  ///< By path with slashes, without folders.
    QHash<QString, QString> m_folded; ///< Paths by themselves without difference of case.
    QHash<QString, QByteArray> m_added;
};

} // namespace Ofd
