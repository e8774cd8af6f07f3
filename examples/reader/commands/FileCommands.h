// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"

#include <QCoreApplication>
#include <QString>

class CommandTable;

/** Files, settings and what the reader says of itself. */
class FileCommands
{
    Q_DECLARE_TR_FUNCTIONS(FileCommands)

public:
    explicit FileCommands(const ReaderParts &parts);

    void addTo(CommandTable &table);

    /**
     * Opens a file and remembers it, unless mayLeaveDocument() refuses. A file that cannot be
     * opened leaves the open document alone; one message tells why.
     */
    void open(const QString &fileName);
    /**
     * Whether the open document may be replaced or closed: it is unchanged, or the user has
     * answered the question that this asks. Of a file that could not be saved completely nothing is
     * lost: the document stays.
     */
    bool mayLeaveDocument();

private:
    void askAndOpen();
    void close();
    // Whether nothing of the document is left to be saved.
    bool save();
    bool saveAs();
    bool saveTo(const QString &fileName);
    void print();
    void refuse(const QString &fileName, const QString &reason) const;
    void showProperties() const;
    void showPreferences();
    void showAbout() const;
    QString askFileToWrite() const;

    ReaderParts m_parts;
    QString m_savedFile; ///< Where the open document was saved last.
};
