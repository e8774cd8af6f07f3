// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Mark.h"
#include "document/OfdFile.h"
#include "document/Page.h"

#include <QCoreApplication>
#include <QUndoCommand>

/** The operations of undo commands. Only they call these, so that every change can be undone. */
class EditableDocument
{
public:
    EditableDocument() = default;
    virtual ~EditableDocument() = default;
    Q_DISABLE_COPY(EditableDocument)

    virtual const QList<Mark> &marks() const = 0;
    virtual void placeMark(int position, const Mark &mark) = 0;
    virtual void removeMark(int id) = 0;
    /** Replaces the mark with the same identifier. */
    virtual void replaceMark(const Mark &mark) = 0;
    virtual void replaceBookmarks(const QList<NamedPlace> &bookmarks) = 0;
    virtual void placePage(int index, const Page &page) = 0;
    virtual void removePage(int index) = 0;
    /** Rotates all pages clockwise by quarter turns. */
    virtual void turnBy(int quarters) = 0;
};

/** Adds a mark to a page. */
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

/** Removes a mark; undo restores its position in the order of painting. */
class RemoveMarkEdit : public QUndoCommand
{
public:
    RemoveMarkEdit(EditableDocument &document, int position, const QString &what);
    void redo() override;
    void undo() override;

private:
    EditableDocument &m_document;
    int m_position;
    Mark m_mark;
};

/** Changes the text of a mark. */
class ChangeTextEdit : public QUndoCommand
{
    Q_DECLARE_TR_FUNCTIONS(ChangeTextEdit)

public:
    ChangeTextEdit(EditableDocument &document, const Mark &mark, const QString &text);
    void redo() override;
    void undo() override;

private:
    EditableDocument &m_document;
    Mark m_before;
    Mark m_after;
};

/** Adds or removes bookmarks. */
class ChangeBookmarksEdit : public QUndoCommand
{
public:
    ChangeBookmarksEdit(EditableDocument &document, const QList<NamedPlace> &before,
                        const QList<NamedPlace> &after, const QString &what);
    void redo() override;
    void undo() override;

private:
    EditableDocument &m_document;
    QList<NamedPlace> m_before;
    QList<NamedPlace> m_after;
};

/** Rotates the pages, which does not modify the document. */
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

/** Inserts a page before the one at an index. */
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
