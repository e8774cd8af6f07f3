// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/SkinIcons.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {

/** The names of icons as in descriptions, by file names in lower case. */
using FilesByName = QHash<QString, QString>;

FilesByName filesByName(const QString &skin)
{
    FilesByName names;
    QDirIterator files(SkinIcons::directory(skin), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next().mid(SkinIcons::directory(skin).size());
        QString &known = names[files.fileName().toLower()];
        // The largest of several sizes is the one for rows.
        known = std::max(known, name);
    }
    return names;
}

} // namespace

QStringList SkinIcons::skins()
{
    return {QStringLiteral("marodi"), QStringLiteral("lum")};
}

QString SkinIcons::directory(const QString &skin)
{
    return QStringLiteral(":/mr_toolbar/Resources/%1/icons/").arg(skin);
}

bool SkinIcons::exists(const QString &skin, const QString &name)
{
    return QFileInfo(SkinIcons::directory(skin) + name).isFile();
}

QString SkinIcons::elsewhere(const QString &skin, const QString &name)
{
    static const QHash<QString, FilesByName> skinFiles = [] {
        QHash<QString, FilesByName> all;
        for (const QString &known : skins())
            all.insert(known, filesByName(known));
        return all;
    }();
    return skinFiles.value(skin).value(name.section(QLatin1Char('/'), -1).toLower());
}
