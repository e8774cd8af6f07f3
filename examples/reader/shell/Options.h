// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** The options of the command line. Its texts are not translated. */
struct Options
{
    QString skin;
    QString language;
    QString scheme; ///< Empty for the one of the last run.
    QString description;
    QStringList resources; ///< Of a host, with the icons of the description.
    QString screenshot;    ///< Empty if no picture is requested.
    QString file;          ///< The document to open; empty for the sample.
    bool clearHistory = false;
    bool watch = false; ///< Rebuild the toolbar whenever the description is saved.

    /** Whether the arguments ask for a text only, which needs no display. */
    static bool askForText(int count, char *const *arguments);
    /** Parses the arguments. On --help and --version prints the text and ends the program. */
    static Options of(const QStringList &arguments, QString *error);
};
