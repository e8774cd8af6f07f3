// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"
#include "document/Mark.h"

#include <QCoreApplication>

class CommandTable;
class QString;

/** Everything that changes the document: tools, stamps, pages, and taking it back. */
class EditCommands
{
    Q_DECLARE_TR_FUNCTIONS(EditCommands)

public:
    explicit EditCommands(const ReaderParts &parts);

    void addTo(CommandTable &table);

    void useTool(const QString &name);
    void editHandwriting();
    /** Puts on the page what the user drew; for a box of text asks what it says. */
    void addDrawn(Mark mark);

private:
    void addTools(CommandTable &table);
    void addSelection(CommandTable &table);
    void addPages(CommandTable &table);
    void addStamps(CommandTable &table);
    void place(MarkKind kind, const QRectF &rect, const QString &text);
    void placeOnEveryPage(MarkKind kind, const QRectF &rect, const QString &text);
    void addWatermark();
    void selectPages(int first, int last);

    ReaderParts m_parts;
    QString m_lastPen;
};
