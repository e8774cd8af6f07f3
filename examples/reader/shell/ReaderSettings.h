// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>
#include <QStringList>

/** What the reader remembers from one run to the next. */
class ReaderSettings
{
public:
    ReaderSettings();

    QStringList recentFiles() const;
    /** Puts a file first; the same file further down is dropped. */
    void addRecentFile(const QString &fileName);
    void clearRecentFiles();

    int recentLimit() const;
    void setRecentLimit(int limit);

    /** The quick access buttons as the toolbar of that skin gave them; empty on the first run. */
    QString quickAccessButtons(const QString &skin) const;
    void setQuickAccessButtons(const QString &skin, const QString &buttons);

private:
    QSettings m_settings;
};
