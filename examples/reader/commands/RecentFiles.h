// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** The operations on the recent files that commands use. */
class RecentFiles
{
public:
    RecentFiles() = default;
    virtual ~RecentFiles() = default;
    Q_DISABLE_COPY(RecentFiles)

    virtual QStringList recentFiles() const = 0;
    /** Puts a file at the start of the list, without duplicates. */
    virtual void addRecentFile(const QString &fileName) = 0;
    /** Whether the file is one of the user's, not one that exists only as long as the program runs.
     */
    virtual bool isKept(const QString &fileName) const = 0;
    virtual void removeRecentFile(const QString &fileName) = 0;
    virtual void clearRecentFiles() = 0;

    /** Where files were opened last; empty before the first one. */
    virtual QString lastFolder() const = 0;

    virtual int recentLimit() const = 0;
    virtual void setRecentLimit(int limit) = 0;
};
