// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"

#include <QCoreApplication>
#include <QUndoCommand>

/** A mark put on a page. */
class AddMarkEdit : public QUndoCommand
{
public:
    AddMarkEdit(Document &document, const Mark &mark, const QString &what);
    void redo() override;
    void undo() override;

private:
    Document &m_document;
    Mark m_mark;
};

/** A mark rubbed out; it comes back where it was in the order of drawing. */
class RemoveMarkEdit : public QUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(RemoveMarkEdit)

public:
    RemoveMarkEdit(Document &document, int position);
    void redo() override;
    void undo() override;

private:
    Document &m_document;
    int m_position;
    Mark m_mark;
};

/** The pages turned. It changes what is seen but nothing that would be saved. */
class TurnEdit : public QUndoCommand
{
public:
    static constexpr int kind = 1;

    TurnEdit(Document &document, int quarters, const QString &what);
    void redo() override;
    void undo() override;
    int id() const override { return kind; }

private:
    Document &m_document;
    int m_quarters;
};

/** A page inserted before the one at an index. */
class InsertPageEdit : public QUndoCommand
{
public:
    InsertPageEdit(Document &document, int index, const Page &page, const QString &what);
    void redo() override;
    void undo() override;

private:
    Document &m_document;
    int m_index;
    Page m_page;
};
