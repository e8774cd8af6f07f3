// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"

#include <QCoreApplication>
#include <QString>

class MRToolBarCommands;

/** The commands for files, for settings and for information about the reader. */
class FileCommands
{
    Q_DECLARE_TR_FUNCTIONS(FileCommands)

public:
    explicit FileCommands(const ReaderParts &parts);

    void addTo(MRToolBarCommands &commands);

    /**
     * Opens a file and adds it to the recent files, unless mayLeaveDocument() returns false. A file
     * that cannot be opened does not change the open document; one message tells why, or refusal
     * does if it is given.
     */
    bool open(const QString &fileName, QString *refusal = nullptr);
    /** Opens another document of the open file, with the same question and message. */
    void openBody(int body);
    /** Opens a file of the list of recent ones, or takes it off if it is gone, and says so. */
    void openRecent(const QString &fileName);
    /** The sentence about a file that cannot be opened. */
    static QString refusalOf(const QString &fileName, const QString &error);
    void showRefusal(const QString &sentence) const;
    /**
     * Whether the open document may be replaced or closed: it is unchanged, or the user was asked
     * and has saved or discarded the changes. After an incomplete save it may not.
     */
    bool mayLeaveDocument();
    /** Shows all signatures of the document, with the details of that one. */
    void showSignatures(int signature = 0) const;

private:
    void tellOpened(const QString &fileName);
    void askAndOpen();
    void close();
    // Returns whether the document has no unsaved changes afterwards.
    bool save();
    bool saveAs();
    bool saveTo(const QString &fileName);
    /** Whether saving may replace the opened file, which then loses nothing. */
    bool mayReplaceFile() const;
    /** Can be cancelled if it takes long. */
    bool write(const QString &fileName, QString *error) const;
    bool mayBreakSignature(const QString &fileName) const;
    void print();
    void showProperties() const;
    void showPreferences();
    void showAbout() const;
    QString folder() const;
    QString askFileToWrite() const;
    bool mayReplace(const QString &fileName) const;

    ReaderParts m_parts;
    QString m_savedFile; ///< Where the open document was saved last.
};
