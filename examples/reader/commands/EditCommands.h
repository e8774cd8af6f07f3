// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"
#include "document/Mark.h"
#include "panels/TextWalk.h"

#include <QCoreApplication>

#include <memory>

class MRToolBarCommands;
class QString;

/** The commands that change the document: tools, stamps, pages, undo and redo. */
class EditCommands
{
    Q_DECLARE_TR_FUNCTIONS(EditCommands)

public:
    explicit EditCommands(const ReaderParts &parts);

    void addTo(MRToolBarCommands &commands);

    /** Puts the selected text on the clipboard, after a while if it is that of many pages. */
    void copySelection();
    void useTool(const QString &name);
    void editHandwriting();
    /** Adds what the user drew to the document; asks for the text of a text box. */
    void addDrawn(Mark mark);
    void eraseInk(int page, QPointF point, qreal radius);
    /** Asks for another text of a mark. */
    void editMark(int id);
    void removeMark(int id);
    void addBookmark(int page);
    void removeBookmark(int index);

private:
    void addTools(MRToolBarCommands &commands);
    void addSelection(MRToolBarCommands &commands);
    void addPages(MRToolBarCommands &commands);
    void addStamps(MRToolBarCommands &commands);
    void place(MarkKind kind, const QRectF &rect, const QString &text);
    void placeOnEveryPage(MarkKind kind, const QRectF &rect, const QString &text);
    void addWatermark();
    /** Whether the act is allowed; otherwise the user is told why not, as for a mark. */
    bool may(Act act) const;
    bool mayChange(const Mark *mark) const;
    /** Returns false if the user has cancelled. */
    bool askForText(const QString &title, const QString &label, QString *text) const;
    void selectPage();
    void selectAll();
    void followCopying();

    ReaderParts m_parts;
    QString m_lastPen;
    std::shared_ptr<const QString> m_copied; ///< Complete after the walk.
    int m_copiedPages = 0;
    TextWalk m_walk;
};
