// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Package.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <quazip/quazipfile.h>

namespace Ofd {

namespace {

const QByteArray zipSignature = QByteArrayLiteral("PK");

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    if (!file.exists())
        throw Fault{Wording::tr("文件不存在。")};
    if (QFileInfo(fileName).isDir())
        throw Fault{Wording::tr("这是一个文件夹，不是 OFD 文件。")};
    if (!file.open(QIODevice::ReadOnly))
        throw Fault{Wording::tr("无法读取文件：%1。").arg(file.errorString())};
    if (file.size() > Limits::archiveBytes)
        throw Fault{Wording::tr("文件过大，超过 %1 MB。").arg(Limits::archiveBytes >> 20)};
    return file.readAll();
}

bool leavesArchive(const QString &name)
{
    return name.startsWith(QChar(u'/')) || name.contains(QChar(u'\\')) || name.contains(QChar(u':'))
           || name.split(QChar(u'/')).contains(QStringLiteral(".."));
}

} // namespace

Package::Package(const QString &fileName)
    : m_archive(bytesOf(fileName))
    , m_buffer(&m_archive)
    , m_zip(&m_buffer)
{
    if (!m_archive.startsWith(zipSignature))
        throw Fault{Wording::tr("这不是 OFD 文件：它不是 ZIP 包。")};
    if (!m_zip.open(QuaZip::mdUnzip))
        throw Fault{Wording::tr("文件不完整：ZIP 包的目录缺失或已损坏。")};
    list();
}

void Package::list()
{
    if (m_zip.getEntriesCount() > Limits::entries)
        throw Fault{Wording::tr("包内文件过多，超过 %1 个。").arg(Limits::entries)};
    const QList<QuaZipFileInfo64> entries = m_zip.getFileInfoList64();
    if (entries.size() != m_zip.getEntriesCount())
        throw Fault{Wording::tr("文件不完整：ZIP 包的目录缺失或已损坏。")};
    quint64 total = 0;
    for (const QuaZipFileInfo64 &entry : entries) {
        check(entry);
        total += entry.uncompressedSize;
        if (total > quint64(Limits::unpackedBytes))
            throw Fault{
                Wording::tr("包内文件解压后过大，超过 %1 MB。").arg(Limits::unpackedBytes >> 20)};
        if (!entry.name.endsWith(QChar(u'/')))
            m_sizes.insert(entry.name, qint64(entry.uncompressedSize));
    }
}

void Package::check(const QuaZipFileInfo64 &entry) const
{
    if (leavesArchive(entry.name))
        throw Fault{Wording::tr("包内路径“%1”指向包外。").arg(entry.name)};
    if (entry.isEncrypted())
        throw Fault{Wording::tr("文件已加密，无法打开。")};
    const bool isLarge = entry.uncompressedSize > quint64(Limits::harmlessBytes);
    const quint64 packed = qMax(entry.compressedSize, quint64(1));
    if (entry.uncompressedSize > quint64(Limits::entryBytes)
        || (isLarge && entry.uncompressedSize / packed > quint64(Limits::packingRatio)))
        throw Fault{Wording::tr("包内文件“%1”解压后异常巨大。").arg(entry.name)};
}

QByteArray Package::read(const QString &path) const
{
    const Fault damage{Wording::tr("包内文件“%1”缺失或已损坏。").arg(path)};
    const qint64 size = m_sizes.value(path, -1);
    const QMutexLocker guard(&m_lock);
    if (size < 0 || !m_zip.setCurrentFile(path, QuaZip::csSensitive))
        throw damage;
    QuaZipFile file(&m_zip);
    if (!file.open(QIODevice::ReadOnly))
        throw damage;
    // The size in the directory may be wrong, which one further byte shows.
    QByteArray bytes = file.read(size + 1);
    file.close();
    if (bytes.size() != size || file.getZipError() != UNZ_OK)
        throw damage;
    return bytes;
}

QString Package::find(const QString &from, const QString &location) const
{
    const QString trimmed = location.trimmed();
    if (trimmed.isEmpty())
        return QString();
    const QString folder = from.left(from.lastIndexOf(QChar(u'/')) + 1);
    const bool isAbsolute = trimmed.startsWith(QChar(u'/'));
    QString path = normalised(isAbsolute ? trimmed : folder + trimmed);
    if (has(path))
        return path;
    // Some writers give locations relative to the root without a leading slash.
    const QString fromRoot = isAbsolute ? path : normalised(trimmed);
    return has(fromRoot) ? fromRoot : QString();
}

QString Package::normalised(const QString &location)
{
    QStringList way;
    const QStringList steps = location.split(QChar(u'/'), Qt::SkipEmptyParts);
    for (const QString &step : steps) {
        if (step == QLatin1String("."))
            continue;
        if (step != QLatin1String("..")) {
            way.append(step);
            continue;
        }
        if (way.isEmpty())
            throw Fault{Wording::tr("文档中的路径“%1”指向包外。").arg(location)};
        way.removeLast();
    }
    return way.join(QChar(u'/'));
}

} // namespace Ofd
