#pragma once

#include "ReaderParts.h"

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
     * Opens a file and remembers it, unless the user keeps unsaved marks. A file that cannot be
     * opened leaves the open document alone; one message tells why.
     */
    void open(const QString &fileName);
    /** Whether the open document may go: it is unchanged, or the user gives its marks up. */
    bool mayDiscard() const;

private:
    void askAndOpen();
    void close();
    void save();
    void saveAs();
    void print();
    void refuse(const QString &fileName, const QString &reason) const;
    void showProperties() const;
    void showPreferences();
    void showAbout() const;
    QString askFileToWrite() const;
    void saveTo(const QString &fileName);

    ReaderParts m_parts;
    QString m_savedFile; ///< Where the open document was saved last.
};
