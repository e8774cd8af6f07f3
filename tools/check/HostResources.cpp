// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/HostResources.h"

#include "tools/check/SkinIcons.h"

#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QResource>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

/** The resource compiler of this version of Qt. */
QString compiler()
{
    const QString name = QStringLiteral("rcc");
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString folder = QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath);
#else
    const QString folder = QLibraryInfo::location(QLibraryInfo::BinariesPath);
#endif
    const QString ofQt = QStandardPaths::findExecutable(name, {folder});
    return ofQt.isEmpty() ? QStandardPaths::findExecutable(name) : ofQt;
}

QString loadCompiled(const QString &path)
{
    return QResource::registerResource(path)
               ? QString()
               : QStringLiteral("there are no resources in '%1'").arg(path);
}

QString loadSource(const QString &path)
{
    // The system removes what is loaded only after the program has closed it.
    const QTemporaryDir folder;
    const QString compiled = folder.filePath(QStringLiteral("resources.rcc"));
    QProcess rcc;
    rcc.start(compiler(), {QStringLiteral("--binary"), QStringLiteral("--output"), compiled, path});
    if (!rcc.waitForStarted())
        return QStringLiteral("'%1' needs the program rcc, which is missing").arg(path);
    rcc.waitForFinished(-1);
    if (rcc.exitStatus() == QProcess::NormalExit && rcc.exitCode() == 0)
        return loadCompiled(compiled);
    const QString reason = QString::fromLocal8Bit(rcc.readAllStandardError()).simplified();
    return QStringLiteral("cannot load '%1': %2").arg(path, reason);
}

/** The elements for the files of the folder, without those of its folders with other icons. */
QString fileElements(const QString &path, const QStringList &exceptBelow = {})
{
    QString elements;
    const QDir folder(QDir(path).absolutePath());
    QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString name = folder.relativeFilePath(file);
        if (!exceptBelow.contains(name.section(QLatin1Char('/'), 0, 0)))
            elements += QStringLiteral("<file alias=\"%1\">%2</file>\n")
                            .arg(name.toHtmlEscaped(), file.toHtmlEscaped());
    }
    return elements;
}

QString loadFolder(const QString &path)
{
    QString source = QStringLiteral("<RCC>\n");
    for (const QString &skin : SkinIcons::skins())
        source +=
            QStringLiteral("<qresource prefix=\"%1\">\n").arg(SkinIcons::directory(skin).mid(1))
            + fileElements(path, SkinIcons::skins()) + fileElements(QDir(path).filePath(skin))
            + QStringLiteral("</qresource>\n");
    source += QStringLiteral("</RCC>\n");

    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("icons.qrc")));
    if (!file.open(QIODevice::WriteOnly) || file.write(source.toUtf8()) < 0)
        return QStringLiteral("cannot write '%1': %2").arg(file.fileName(), file.errorString());
    file.close();
    const QString error = loadSource(file.fileName());
    return error.isEmpty() ? QString()
                           : QStringLiteral("cannot load the folder '%1': %2").arg(path, error);
}

} // namespace

QString HostResources::load(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QStringLiteral("there is no file or folder '%1'").arg(path);
    if (file.isDir())
        return loadFolder(path);
    return file.suffix() == QLatin1String("qrc") ? loadSource(path) : loadCompiled(path);
}
