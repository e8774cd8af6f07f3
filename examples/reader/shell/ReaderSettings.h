// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/RecentFiles.h"

#include <QSettings>
#include <QStringList>

/** The settings that the reader keeps between runs. */
class ReaderSettings : public RecentFiles
{
public:
    ReaderSettings();

    QStringList recentFiles() const override;
    void addRecentFile(const QString &fileName) override;
    void clearRecentFiles() override;

    int recentLimit() const override;
    void setRecentLimit(int limit) override;

    /** What the toolbar was like with that skin; empty on the first run. */
    QString toolBarState(const QString &skin) const;
    void setToolBarState(const QString &skin, const QString &state);

    /** How light the reader is; see ReaderScheme. Light on the first run. */
    QString scheme() const;
    void setScheme(const QString &scheme);

private:
    QSettings m_settings;
};
