// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/DocumentEdits.h"

AddMarkEdit::AddMarkEdit(EditableDocument &document, const Mark &mark, const QString &what)
    : QUndoCommand(what)
    , m_document(document)
    , m_mark(mark)
{
}

void AddMarkEdit::redo()
{
    m_document.placeMark(int(m_document.marks().size()), m_mark);
}

void AddMarkEdit::undo()
{
    m_document.removeMark(m_mark.id);
}

RemoveMarkEdit::RemoveMarkEdit(EditableDocument &document, int position, const QString &what)
    : QUndoCommand(what)
    , m_document(document)
    , m_position(position)
    , m_mark(document.marks().at(position))
{
}

void RemoveMarkEdit::redo()
{
    m_document.removeMark(m_mark.id);
}

void RemoveMarkEdit::undo()
{
    m_document.placeMark(m_position, m_mark);
}

ChangeTextEdit::ChangeTextEdit(EditableDocument &document, const Mark &mark, const QString &text)
    : QUndoCommand(tr("编辑批注"))
    , m_document(document)
    , m_before(mark)
    , m_after(mark)
{
    m_after.text = text;
    m_after.date = QDate::currentDate();
    m_after.isEdited = true;
}

void ChangeTextEdit::redo()
{
    m_document.replaceMark(m_after);
}

void ChangeTextEdit::undo()
{
    m_document.replaceMark(m_before);
}

ChangeBookmarksEdit::ChangeBookmarksEdit(EditableDocument &document,
                                         const QList<NamedPlace> &before,
                                         const QList<NamedPlace> &after, const QString &what)
    : QUndoCommand(what)
    , m_document(document)
    , m_before(before)
    , m_after(after)
{
}

void ChangeBookmarksEdit::redo()
{
    m_document.replaceBookmarks(m_after);
}

void ChangeBookmarksEdit::undo()
{
    m_document.replaceBookmarks(m_before);
}

InsertPageEdit::InsertPageEdit(EditableDocument &document, int index, const Page &page,
                               const QString &what)
    : QUndoCommand(what)
    , m_document(document)
    , m_index(index)
    , m_page(page)
{
}

void InsertPageEdit::redo()
{
    m_document.placePage(m_index, m_page);
}

void InsertPageEdit::undo()
{
    m_document.removePage(m_index);
}

TurnEdit::TurnEdit(EditableDocument &document, int quarters, const QString &what)
    : QUndoCommand(what)
    , m_document(document)
    , m_quarters(quarters)
{
}

void TurnEdit::redo()
{
    m_document.turnBy(m_quarters);
}

void TurnEdit::undo()
{
    m_document.turnBy(-m_quarters);
}
