// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"
#include "document/Page.h"

#include <QCoreApplication>
#include <QUndoCommand>

/** What edits do to a document. Nothing else does, or it could not be undone. */
class EditableDocument
{
public:
    EditableDocument() = default;
    virtual ~EditableDocument() = default;
    Q_DISABLE_COPY(EditableDocument)

    virtual const QList<Mark> &marks() const = 0;
    virtual void placeMark(int position, const Mark &mark) = 0;
    virtual void removeMark(int id) = 0;
    virtual void placePage(int index, const Page &page) = 0;
    virtual void removePage(int index) = 0;
    /** Turns all pages by quarters of a circle, clockwise. */
    virtual void turnBy(int quarters) = 0;
};

/** A mark put on a page. */
class AddMarkEdit : public QUndoCommand
{
public:
    AddMarkEdit(EditableDocument &document, const Mark &mark, const QString &what);
    void redo() override;
    void undo() override;

private:
    EditableDocument &m_document;
    Mark m_mark;
};

/** A mark erased; undoing puts it back where it was in the order of drawing. */
class RemoveMarkEdit : public QUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(RemoveMarkEdit)

public:
    RemoveMarkEdit(EditableDocument &document, int position);
    void redo() override;
    void undo() override;

private:
    EditableDocument &m_document;
    int m_position;
    Mark m_mark;
};

/** The pages turned. It changes what is seen but nothing that would be saved. */
class TurnEdit : public QUndoCommand
{
public:
    static constexpr int kind = 1;

    TurnEdit(EditableDocument &document, int quarters, const QString &what);
    void redo() override;
    void undo() override;
    int id() const override { return kind; }

private:
    EditableDocument &m_document;
    int m_quarters;
};

/** A page inserted before the one at an index. */
class InsertPageEdit : public QUndoCommand
{
public:
    InsertPageEdit(EditableDocument &document, int index, const Page &page, const QString &what);
    void redo() override;
    void undo() override;

private:
    EditableDocument &m_document;
    int m_index;
    Page m_page;
};
