// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** The options of the command line. Its texts are not translated. */
struct Options
{
    QString skin;
    QString language; ///< Empty for the one that the user has chosen, or else the system's.
    QString scheme;   ///< Empty for the one of the last run.
    QString description;
    QStringList resources;   ///< Of a host, with the icons of the description.
    QString screenshot;      ///< Empty if no picture is requested.
    QString printTo;         ///< Empty if no PDF file is requested.
    QStringList files;       ///< Absolute paths of the documents to open.
    bool readsInput = false; ///< One more document comes from the standard input.
    bool sample = false;     ///< Show generated pages.
    bool hostPanel = false;
    bool clearHistory = false;
    bool watch = false; ///< Rebuild the toolbar whenever the description is saved.

    /** Whether the arguments ask for a text only, which needs no display. */
    static bool askForText(int count, char *const *arguments);
    /** Whether they ask for a file only, which needs none, either, if there is none. */
    static bool askForFile(int count, char *const *arguments);
    /** Parses the arguments. On --help and --version prints the text and ends the program. */
    static Options of(const QStringList &arguments, QString *error);

    /** Whether the windows are as the user left them, and whether this is kept again. */
    bool keeps() const { return !watch && screenshot.isEmpty(); }
    /** Whether a program that runs may show the files instead of this one. */
    bool mayHandOver() const { return keeps() && !readsInput && !sample; }
    /** What must be the same in a program that shows the files instead of this one. */
    QString look() const;
};
