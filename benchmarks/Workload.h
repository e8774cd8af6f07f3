// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** The contents of both contenders: tabs with a row of commands each, and a file menu. */
struct Workload
{
    int tabs = 3;
    int commands = 30; ///< Per tab.

    static constexpr int menuEntries = 12;

    /** The name of the workload, such as "3x30". */
    QString name() const;
    QString tabName(int tab) const;
    QString commandName(int tab, int command) const;
    QString menuEntryName(int entry) const;
    /** The names of all commands in the order of the tabs. */
    QStringList commandNames() const;

    static QString commandText(int command);
    static QString commandToolTip(int command);
    /** The path of a command's icon below the skin's directory of icons. */
    static QString commandIcon(int command);
    static QString iconDirectory();

    /** The workload as a description, with the first tab checked. */
    QString description() const;
};
