// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/DocumentEdits.h"
#include "document/OfdFile.h"

#include <QList>
#include <QObject>
#include <QUndoStack>

/**
 * A document with marks on its pages, which come from an OFD file or are generated.
 *
 * Everything that changes the document, or the way its pages are turned, can be undone.
 */
class Document : public QObject, private EditableDocument
{
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);

    /** On a fault leaves everything as it is and tells in one sentence what is wrong. */
    bool open(const QString &fileName, QString *error);
    /** Generates pages; the name is their seed, so that one name always gives the same text. */
    void openGenerated(const QString &name);
    void close();

    bool isOpen() const { return !m_pages.isEmpty(); }
    QString fileName() const { return m_fileName; }
    QString title() const;
    /** What else came with the pages; empty for generated ones. */
    const OfdFile &file() const { return m_file; }
    bool isGenerated() const { return m_file.archive.isEmpty(); }

    int pageCount() const { return int(m_pages.size()); }
    /** The page with its text; only for the size of a page there is a cheaper way. */
    const Page &page(int index) const;
    QSizeF sizeOf(int page) const { return m_pages.at(page).size; }
    /** What paints the page; nullptr for a generated one, which is made of its lines. */
    const PageContent *contentOf(int page) const { return m_pages.at(page).content.get(); }
    /** As wide as the widest page and as high as the highest. */
    QSizeF largestSize() const { return m_largestSize; }
    const QList<Mark> &marks() const override { return m_marks; }
    bool hasPageOf(const Mark &mark) const;
    int characterCount() const;

    QUndoStack &undoStack() { return m_undoStack; }
    const QUndoStack &undoStack() const { return m_undoStack; }
    /** Whether more than the turning of pages has changed since the last saving. */
    bool isModified() const;

    /** By how many quarters of a circle the pages are turned, clockwise: 0 to 3. */
    int quarters() const { return m_quarters; }
    void turn(int quarters, const QString &what);

    void addMark(Mark mark, const QString &what);
    /** Takes away the ink that passes within @p radius of a point. */
    void eraseInk(int page, QPointF point, qreal radius);
    void insertPage(int index, const Page &page, const QString &what);

Q_SIGNALS:
    /** Marks came or went. */
    void marksChanged();
    /** Pages came or went; the marks may have moved with them. */
    void pagesChanged();
    /** The pages are turned another way. */
    void turned();

private:
    void replace(const QString &fileName, const QList<Page> &pages, const OfdFile &file);
    void pagesReplaced();

    void placeMark(int position, const Mark &mark) override;
    void removeMark(int id) override;
    void placePage(int index, const Page &page) override;
    void removePage(int index) override;
    void turnBy(int quarters) override;

    QString m_fileName;
    OfdFile m_file;
    /** Texts are filled in when they are asked for, which changes nothing that anyone could see. */
    mutable QList<Page> m_pages;
    QSizeF m_largestSize;
    QList<Mark> m_marks;
    QUndoStack m_undoStack;
    int m_lastMarkId = 0;
    int m_quarters = 0;
};
