// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Package.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QStringList>
#include <QUrl>

#include <quazip/quazipfile.h>

#include <algorithm>

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

/** Some writers separate folders as one operating system does. */
QString withSlashes(QString path)
{
    return path.replace(QChar(u'\\'), QChar(u'/'));
}

Fault damageOf(const QString &path)
{
    return Fault{Wording::tr("包内文件“%1”缺失或已损坏。").arg(path)};
}

bool hasDrive(const QString &path)
{
    return path.size() > 1 && path.at(1) == QChar(u':') && path.at(0).isLetter();
}

bool leavesArchive(const QString &path)
{
    return path.startsWith(QChar(u'/')) || hasDrive(path)
           || path.split(QChar(u'/')).contains(QStringLiteral(".."));
}

} // namespace

Package::Package(const QString &fileName)
    : Package(bytesOf(fileName))
{
}

Package::Package(const QByteArray &archive)
    : m_archive(archive)
    , m_buffer(&m_archive)
    , m_zip(&m_buffer)
{
    if (!m_archive.startsWith(zipSignature))
        throw Fault{Wording::tr("这不是 OFD 文件：它不是 ZIP 包。")};
    // By default names would depend on the locale.
    m_zip.setFileNameCodec("UTF-8");
    if (!m_zip.open(QuaZip::mdUnzip))
        throw Fault{Wording::tr("文件不完整：ZIP 包的目录缺失或已损坏。")};
    list();
}

QList<QuaZipFileInfo64> Package::listed()
{
    const QList<QuaZipFileInfo64> found = m_zip.getFileInfoList64();
    const bool isDecoded =
        std::none_of(found.cbegin(), found.cend(), [](const QuaZipFileInfo64 &entry) {
            return entry.name.contains(QChar(QChar::ReplacementCharacter));
        });
    if (isDecoded)
        return found;
    // Names that are not in UTF-8 are in the encoding that Chinese writers use without saying so.
    m_zip.close();
    m_zip.setFileNameCodec("GB18030");
    m_zip.open(QuaZip::mdUnzip);
    return m_zip.getFileInfoList64();
}

void Package::list()
{
    if (m_zip.getEntriesCount() > Limits::entries)
        throw Fault{Wording::tr("包内文件过多，超过 %1 个。").arg(Limits::entries)};
    const QList<QuaZipFileInfo64> all = listed();
    if (all.size() != m_zip.getEntriesCount())
        throw Fault{Wording::tr("文件不完整：ZIP 包的目录缺失或已损坏。")};
    quint64 total = 0;
    for (const QuaZipFileInfo64 &entry : all) {
        const QString path = withSlashes(entry.name);
        check(entry, path);
        total += entry.uncompressedSize;
        if (total > quint64(Limits::unpackedBytes))
            throw Fault{
                Wording::tr("包内文件解压后过大，超过 %1 MB。").arg(Limits::unpackedBytes >> 20)};
        if (path.endsWith(QChar(u'/')))
            continue;
        // Of entries with the same path, the last one counts, as for the archive itself.
        m_entries.insert(path, {entry.name, qint64(entry.uncompressedSize)});
        m_folded.insert(path.toCaseFolded(), path);
    }
}

void Package::check(const QuaZipFileInfo64 &entry, const QString &path)
{
    if (leavesArchive(path))
        throw Fault{Wording::tr("包内路径“%1”指向包外。").arg(entry.name)};
    if (entry.isEncrypted())
        throw Fault{Wording::tr("文件已加密，无法打开。")};
    const bool isLarge = entry.uncompressedSize > quint64(Limits::harmlessBytes);
    const quint64 packed = qMax(entry.compressedSize, quint64(1));
    if (entry.uncompressedSize > quint64(Limits::entryBytes)
        || (isLarge && entry.uncompressedSize / packed > quint64(Limits::packingRatio)))
        throw Fault{Wording::tr("包内文件“%1”解压后异常巨大。").arg(entry.name)};
}

QString Package::pathOf(const QString &path) const
{
    return m_entries.contains(path) ? path : m_folded.value(path.toCaseFolded());
}

QByteArray Package::read(const QString &path) const
{
    if (m_added.contains(path))
        return m_added.value(path);
    const Entry entry = m_entries.value(pathOf(path));
    // The size in the directory may be wrong, which one further byte shows.
    const QByteArray bytes = unpack(path, entry.size + 1);
    if (bytes.size() != entry.size)
        throw damageOf(path);
    return bytes;
}

QByteArray Package::unpack(const QString &path, qint64 most) const
{
    const QMutexLocker locker(&m_mutex);
    const Entry entry = m_entries.value(pathOf(path));
    if (entry.size < 0 || !m_zip.setCurrentFile(entry.name, QuaZip::csSensitive))
        throw damageOf(path);
    QuaZipFile file(&m_zip);
    if (!file.open(QIODevice::ReadOnly))
        throw damageOf(path);
    const QByteArray bytes = file.read(most);
    file.close();
    if (file.getZipError() != UNZ_OK)
        throw damageOf(path);
    return bytes;
}

QByteArray Package::readStart(const QString &path, int length) const
{
    try {
        return unpack(path, length);
    } catch (const Fault &) {
        return QByteArray();
    }
}

QString Package::find(const QString &from, const QString &location) const
{
    const QString trimmed = withSlashes(location.trimmed());
    if (trimmed.isEmpty())
        return QString();
    const QString found = findPlain(from, trimmed);
    if (!found.isEmpty() || !trimmed.contains(QChar(u'%')))
        return found;
    return findPlain(from, withSlashes(QUrl::fromPercentEncoding(trimmed.toUtf8())));
}

QString Package::findPlain(const QString &from, const QString &location) const
{
    const QString folder = from.left(from.lastIndexOf(QChar(u'/')) + 1);
    const bool isAbsolute = location.startsWith(QChar(u'/'));
    const bool isWhole = isAbsolute || hasDrive(location);
    const QString path = pathOf(normalised(isWhole ? location : folder + location));
    if (!path.isEmpty() || isAbsolute || location.startsWith(QLatin1String("..")))
        return path;
    // Some writers give locations relative to the root without a leading slash.
    return pathOf(normalised(location));
}

QString Package::normalised(const QString &location)
{
    if (hasDrive(location))
        throw Fault{Wording::tr("文档中的路径“%1”指向包外。").arg(location)};
    QStringList way;
    const QStringList steps = withSlashes(location).split(QChar(u'/'), Qt::SkipEmptyParts);
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
