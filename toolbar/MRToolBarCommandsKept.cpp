// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/Latin1.h"
#include "toolbar/MRToolBarCommandsPrivate.h"
#include "toolbar/description/Names.h"

#include <QFileInfo>

namespace {

constexpr QLatin1String stateKey = latin1("/state");
constexpr QLatin1String recentKey = latin1("/recentfiles");
constexpr QLatin1String recentValue = latin1("recent files");

} // namespace

void MRToolBarCommands::Private::add(const QString &name, const EntryPointer &entry)
{
    if (!entries.contains(name))
        names.append(name);
    entries.insert(name, entry);
}

MRToolBarCommands::Private::EntryPointer
MRToolBarCommands::Private::entry(const QString &name) const
{
    if (entries.contains(name))
        return entries.value(name);
    for (const auto &[prefix, entry] : prefixes) {
        if (name.startsWith(prefix))
            return entry;
    }
    return nullptr;
}

void MRToolBarCommands::Private::setValue(const QString &name, const Value &value)
{
    values.insert(name, value);
    m_toldValues.remove(name);
}

void MRToolBarCommands::connectKept()
{
    connect(d->toolBar, &MRToolBar::DoStateChanged, this, [this] {
        if (d->settings && d->toolBar)
            d->settings->setValue(d->group + stateKey, d->toolBar->GetToolBarState());
    });
    d->restore();
}

void MRToolBarCommands::keepIn(QSettings *settings, const QString &group)
{
    d->settings = settings;
    d->group = group;
    if (!settings)
        return;
    d->recentFiles = settings->value(group + recentKey).toStringList();
    update();
    // Last, as it opens a tab and asks the host for states.
    d->restore();
}

void MRToolBarCommands::setRecentFiles(const std::function<void(const QString &fileName)> &open,
                                       int limit)
{
    d->recentLimit = std::max(limit, 0);
    setRecentFiles([this] { return recentFiles(); }, open);
    addDescribed(Name::clearHistory, [this] { clearRecentFiles(); }, {});
}

void MRToolBarCommands::setRecentFiles(const std::function<QStringList()> &files,
                                       const std::function<void(const QString &fileName)> &open)
{
    d->openRecent = open;
    d->setValue(recentValue, {[files] { return files ? files() : QStringList(); },
                              [](MRToolBar &toolBar, const QVariant &value) {
                                  toolBar.DoUpdateRecentFileSlot(value.toStringList());
                              }});
    update();
}

void MRToolBarCommands::addRecentFile(const QString &fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    d->recentFiles.removeAll(path);
    d->recentFiles.prepend(path);
    d->recentFiles = d->recentFiles.mid(0, d->recentLimit);
    d->storeRecentFiles();
    update();
}

void MRToolBarCommands::clearRecentFiles()
{
    d->recentFiles.clear();
    d->storeRecentFiles();
    update();
}

QStringList MRToolBarCommands::recentFiles() const
{
    return d->recentFiles.mid(0, d->recentLimit);
}

void MRToolBarCommands::Private::restore() const
{
    const QString state =
        settings && toolBar ? settings->value(group + stateKey).toString() : QString();
    if (!state.isEmpty())
        toolBar->DoSetSkinStyleSlot({{SkinKey::toolBarState, state}});
}

void MRToolBarCommands::Private::storeRecentFiles() const
{
    if (settings)
        settings->setValue(group + recentKey, recentFiles);
}
