// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"
#include "document/Mark.h"

#include <QCoreApplication>

class CommandTable;
class QString;

/** The commands that change the document: tools, stamps, pages, undo and redo. */
class EditCommands
{
    Q_DECLARE_TR_FUNCTIONS(EditCommands)

public:
    explicit EditCommands(const ReaderParts &parts);

    void addTo(CommandTable &table);

    void useTool(const QString &name);
    void editHandwriting();
    /** Adds what the user drew to the document; asks for the text of a text box. */
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
