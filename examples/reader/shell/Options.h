// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** What was asked for on the command line, whose own texts are English in every language. */
struct Options
{
    QString skin;
    QString language;
    QString description;
    QString screenshot; ///< Empty for a window that stays.
    QString file;       ///< The document to open; empty for the sample.
    bool clearHistory = false;
    bool watch = false; ///< Follow the description, which is a file, whenever it is saved.

    /** Shows the help and ends the program if that is asked for; tells what is wrong in @p error.
     */
    static Options of(const QStringList &arguments, QString *error);
};
