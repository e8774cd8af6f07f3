// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Archive.h"

#include "ofd/Fault.h"
#include "ofd/Wording.h"

#include <QBuffer>

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>

#include <optional>

namespace Ofd {

namespace {

constexpr int utf8Flag = 0x800;
constexpr quint16 zip64Field = 1;

/** Copies entries from one archive to another. */
class ArchiveCopy
{
public:
    ArchiveCopy(QByteArray &from, QByteArray &to)
        : m_source(&from)
        , m_target(&to)
        , m_reader(&m_source)
        , m_writer(&m_target)
    {
        // Latin-1 keeps every byte of a name, whatever its encoding is.
        m_reader.setFileNameCodec("ISO-8859-1");
        m_writer.setFileNameCodec("ISO-8859-1");
        m_writer.setDataDescriptorWritingEnabled(false);
        require(m_reader.open(QuaZip::mdUnzip) && m_writer.open(QuaZip::mdCreate));
    }

    /** Copies all entries with these in place of old ones, and returns those that are new. */
    QMap<QString, QByteArray> replace(QMap<QString, QByteArray> entries)
    {
        for (bool more = m_reader.goToFirstFile(); more; more = m_reader.goToNextFile()) {
            QuaZipFileInfo64 entry;
            require(m_reader.getCurrentFileInfo(&entry));
            const QString name = nameOf(entry);
            if (entries.contains(name))
                add(name, entries.take(name));
            else
                copyPacked(entry);
        }
        return entries;
    }

    void add(const QString &name, const QByteArray &bytes)
    {
        m_writer.setUtf8Enabled(true);
        QuaZipFile file(&m_writer);
        require(file.open(QIODevice::WriteOnly, QuaZipNewInfo(name)));
        require(file.write(bytes) == bytes.size());
        file.close();
        require(file.getZipError() == ZIP_OK);
    }

    void finish()
    {
        m_writer.close();
        require(m_writer.getZipError() == ZIP_OK);
    }

private:
    static void require(bool isDone)
    {
        if (!isDone)
            throw Fault{Wording::tr("无法复制文件的 ZIP 包。")};
    }

    static QString nameOf(const QuaZipFileInfo64 &entry)
    {
        QString name =
            entry.flags & utf8Flag ? entry.name : QString::fromUtf8(entry.name.toLatin1());
        return name.replace(QChar(u'\\'), QChar(u'/'));
    }

    void copyPacked(const QuaZipFileInfo64 &entry)
    {
        m_writer.setUtf8Enabled(entry.flags & utf8Flag);
        QuaZipNewInfo info(entry);
        info.uncompressedSize = entry.uncompressedSize;
        // Fields of the directory need not be those of the entry, and sizes are written anew.
        info.extraLocal.clear();
        if (QuaZipFileInfo64::parseExtraField(entry.extra).contains(zip64Field))
            info.extraGlobal.clear();
        int method = 0;
        int level = 0;
        QuaZipFile packed(&m_reader);
        require(packed.open(QIODevice::ReadOnly, &method, &level, true));
        const QByteArray bytes = packed.read(qint64(entry.compressedSize));
        require(bytes.size() == qint64(entry.compressedSize));
        QuaZipFile file(&m_writer);
        require(file.open(QIODevice::WriteOnly, info, nullptr, entry.crc, method, level, true));
        require(file.write(bytes) == bytes.size());
        file.close();
        require(file.getZipError() == ZIP_OK);
    }

    QBuffer m_source;
    QBuffer m_target;
    QuaZip m_reader;
    QuaZip m_writer;
};

} // namespace

QByteArray Archive::withEntries(const Package &package, const QMap<QString, QByteArray> &entries)
{
    QByteArray archive = package.archive();
    QByteArray copied;
    ArchiveCopy copy(archive, copied);
    const QMap<QString, QByteArray> others = copy.replace(entries);
    for (auto entry = others.cbegin(); entry != others.cend(); ++entry) {
        // The archive must not get a second entry beside one whose name is written otherwise.
        if (package.has(entry.key()))
            throw Fault{Wording::tr("无法复制文件的 ZIP 包。")};
        copy.add(entry.key(), entry.value());
    }
    copy.finish();
    return copied;
}

} // namespace Ofd
