// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/ReaderSettings.h"

#include <QFileInfo>

namespace {

constexpr int defaultRecentLimit = 8;
const QString recentFilesKey = QStringLiteral("recentFiles");
const QString recentLimitKey = QStringLiteral("recentLimit");
const QString schemeKey = QStringLiteral("scheme");
const QString toolBarStateKey = QStringLiteral("toolBarState/");

} // namespace

ReaderSettings::ReaderSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("mrtoolbar"),
                 QStringLiteral("reader"))
{
}

QStringList ReaderSettings::recentFiles() const
{
    return m_settings.value(recentFilesKey).toStringList().mid(0, recentLimit());
}

void ReaderSettings::addRecentFile(const QString &fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    m_settings.setValue(recentFilesKey, QStringList(files.mid(0, recentLimit())));
}

void ReaderSettings::clearRecentFiles()
{
    m_settings.remove(recentFilesKey);
}

int ReaderSettings::recentLimit() const
{
    return m_settings.value(recentLimitKey, defaultRecentLimit).toInt();
}

void ReaderSettings::setRecentLimit(int limit)
{
    m_settings.setValue(recentLimitKey, limit);
}

QString ReaderSettings::toolBarState(const QString &skin) const
{
    return m_settings.value(toolBarStateKey + skin).toString();
}

void ReaderSettings::setToolBarState(const QString &skin, const QString &state)
{
    m_settings.setValue(toolBarStateKey + skin, state);
}

QString ReaderSettings::scheme() const
{
    return m_settings.value(schemeKey, QStringLiteral("light")).toString();
}

void ReaderSettings::setScheme(const QString &scheme)
{
    m_settings.setValue(schemeKey, scheme);
}
