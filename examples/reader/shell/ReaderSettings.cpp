// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/ReaderSettings.h"

#include <QFileInfo>

namespace {

constexpr int defaultRecentLimit = 8;
constexpr int mostPlaces = 100;
constexpr QChar separator(u' ');
const QString recentFilesKey = QStringLiteral("recentFiles");
const QString recentLimitKey = QStringLiteral("recentLimit");
const QString lastFolderKey = QStringLiteral("lastFolder");
const QString schemeKey = QStringLiteral("scheme");
const QString languageKey = QStringLiteral("language");
const QString geometryKey = QStringLiteral("geometry");
const QString layoutKey = QStringLiteral("layout");
const QString docksKey = QStringLiteral("docks");
const QString panelKey = QStringLiteral("panel");
const QString placesKey = QStringLiteral("places");
const QString toolBarStateKey = QStringLiteral("toolBarState/");

/** The file of a place, which is kept as page, zoom and path. The path may contain spaces. */
QString fileOf(const QString &place)
{
    return place.section(separator, 2);
}

} // namespace

ReaderSettings::ReaderSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("mrtoolbar"),
                 QStringLiteral("reader"))
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // As Qt 6 always does, so that both read what the other has written.
    m_settings.setIniCodec("UTF-8");
#endif
}

std::shared_ptr<ReaderSettings> ReaderSettings::shared()
{
    static std::weak_ptr<ReaderSettings> settings;
    std::shared_ptr<ReaderSettings> now = settings.lock();
    if (!now) {
        now.reset(new ReaderSettings);
        settings = now;
    }
    return now;
}

void ReaderSettings::store(const QString &key, const QVariant &value)
{
    if (m_keeps)
        m_settings.setValue(key, value);
}

QStringList ReaderSettings::recentFiles() const
{
    return m_settings.value(recentFilesKey).toStringList().mid(0, recentLimit());
}

void ReaderSettings::storeRecentFiles(const QStringList &files)
{
    store(recentFilesKey, files);
    Q_EMIT recentFilesChanged();
}

void ReaderSettings::addRecentFile(const QString &fileName)
{
    if (!isKept(fileName))
        return;
    const QString path = QFileInfo(fileName).absoluteFilePath();
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    store(lastFolderKey, QFileInfo(path).absolutePath());
    storeRecentFiles(files.mid(0, recentLimit()));
}

void ReaderSettings::removeRecentFile(const QString &fileName)
{
    QStringList files = recentFiles();
    files.removeAll(fileName);
    storeRecentFiles(files);
}

void ReaderSettings::clearRecentFiles()
{
    storeRecentFiles({});
}

QString ReaderSettings::lastFolder() const
{
    return m_settings.value(lastFolderKey).toString();
}

int ReaderSettings::recentLimit() const
{
    return m_settings.value(recentLimitKey, defaultRecentLimit).toInt();
}

void ReaderSettings::setRecentLimit(int limit)
{
    store(recentLimitKey, limit);
    Q_EMIT recentFilesChanged();
}

QString ReaderSettings::toolBarState(const QString &skin) const
{
    return m_settings.value(toolBarStateKey + skin).toString();
}

void ReaderSettings::setToolBarState(const QString &skin, const QString &state)
{
    store(toolBarStateKey + skin, state);
}

QString ReaderSettings::scheme() const
{
    if (!m_scheme.isEmpty())
        return m_scheme;
    return m_settings.value(schemeKey, QStringLiteral("light")).toString();
}

void ReaderSettings::setScheme(const QString &scheme)
{
    store(schemeKey, scheme);
    useScheme(scheme);
}

void ReaderSettings::useScheme(const QString &scheme)
{
    m_scheme = scheme;
    Q_EMIT schemeChanged(scheme);
}

QString ReaderSettings::language() const
{
    return m_settings.value(languageKey).toString();
}

void ReaderSettings::setLanguage(const QString &language)
{
    store(languageKey, language);
}

QByteArray ReaderSettings::geometry() const
{
    return m_settings.value(geometryKey).toByteArray();
}

void ReaderSettings::setGeometry(const QByteArray &geometry)
{
    store(geometryKey, geometry);
}

LayoutMode ReaderSettings::layoutMode() const
{
    return LayoutMode(qBound(0, m_settings.value(layoutKey).toInt(), int(LayoutMode::DoubleFlow)));
}

void ReaderSettings::setLayoutMode(LayoutMode mode)
{
    store(layoutKey, int(mode));
}

QByteArray ReaderSettings::docks() const
{
    return m_settings.value(docksKey).toByteArray();
}

QString ReaderSettings::panel() const
{
    return m_settings.value(panelKey).toString();
}

void ReaderSettings::setPanels(const QByteArray &docks, const QString &panel)
{
    store(docksKey, docks);
    store(panelKey, panel);
}

ReadingPlace ReaderSettings::place(const QString &fileName) const
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    const QStringList places = m_settings.value(placesKey).toStringList();
    for (const QString &place : places) {
        if (!path.isEmpty() && fileOf(place) == path)
            return {place.section(separator, 0, 0).toInt(), place.section(separator, 1, 1)};
    }
    return ReadingPlace();
}

void ReaderSettings::setPlace(const QString &fileName, const ReadingPlace &place)
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    if (path.isEmpty() || !isKept(fileName))
        return;
    QStringList places{QStringLiteral("%1 %2 ").arg(place.page).arg(place.zoom) + path};
    const QStringList former = m_settings.value(placesKey).toStringList();
    for (const QString &other : former) {
        if (fileOf(other) != path)
            places.append(other);
    }
    store(placesKey, QStringList(places.mid(0, mostPlaces)));
}
