// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/SkinIcons.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {

/** Where the library looks up the icons of a skin. */
QString directory(const QString &skin)
{
    return QStringLiteral(":/mr_toolbar/Resources/%1/icons/").arg(skin);
}

/** The names of the icons, as descriptions write them, by their file names in small letters. */
using FilesByName = QHash<QString, QString>;

FilesByName filesByName(const QString &skin)
{
    FilesByName names;
    QDirIterator files(directory(skin), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next().mid(directory(skin).size());
        QString &known = names[files.fileName().toLower()];
        // Of several sizes the largest is the one for tool rows.
        known = std::max(known, name);
    }
    return names;
}

} // namespace

QStringList SkinIcons::skins()
{
    return {QStringLiteral("marodi"), QStringLiteral("lum")};
}

bool SkinIcons::exists(const QString &skin, const QString &name)
{
    return QFileInfo(directory(skin) + name).isFile();
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
