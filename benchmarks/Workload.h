// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** What both contenders have to show: tabs with a row of commands each, and a file menu. */
struct Workload
{
    int tabs = 3;
    int commands = 30; ///< Of each tab.

    static constexpr int menuEntries = 12;

    /** Such as "3x30". */
    QString name() const;
    QString tabName(int tab) const;
    QString commandName(int tab, int command) const;
    QString menuEntryName(int entry) const;
    /** The names of all commands, tab by tab. */
    QStringList commandNames() const;

    static QString commandText(int command);
    static QString commandToolTip(int command);
    /** Below the skin's directory of icons. */
    static QString commandIcon(int command);
    static QString iconDirectory();

    /** The same as a description of the library's format, with the first tab checked. */
    QString description() const;
};
