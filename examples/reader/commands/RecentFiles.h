// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class QString;

/** What the commands change of the list of recent files. */
class RecentFiles
{
public:
    RecentFiles() = default;
    virtual ~RecentFiles() = default;
    Q_DISABLE_COPY(RecentFiles)

    /** Puts a file first; the same file further down is dropped. */
    virtual void addRecentFile(const QString &fileName) = 0;
    virtual void clearRecentFiles() = 0;

    virtual int recentLimit() const = 0;
    virtual void setRecentLimit(int limit) = 0;
};
