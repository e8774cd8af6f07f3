#pragma once

#include "Mark.h"
#include "Page.h"

#include <QList>
#include <QObject>
#include <QUndoStack>

/**
 * A document of generated pages with marks on them.
 *
 * Nothing is read from a file: its name and size are the seed of the pages, so that one file always
 * shows the same text. Everything that changes the document can be undone.
 */
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);

    void open(const QString &fileName);
    void close();

    bool isOpen() const { return !m_pages.isEmpty(); }
    QString fileName() const { return m_fileName; }
    QString title() const;

    int pageCount() const { return int(m_pages.size()); }
    const Page &page(int index) const { return m_pages.at(index); }
    const QList<Mark> &marks() const { return m_marks; }
    bool hasPageOf(const Mark &mark) const;
    int characterCount() const;

    QUndoStack &undoStack() { return m_undoStack; }
    const QUndoStack &undoStack() const { return m_undoStack; }

    void addMark(Mark mark, const QString &what);
    /** Takes away the ink that passes within @p radius of a point. */
    void eraseInk(int page, QPointF point, qreal radius);
    void insertPage(int index, const Page &page, const QString &what);

Q_SIGNALS:
    /** Marks came or went. */
    void marksChanged();
    /** Pages came or went; the marks may have moved with them. */
    void pagesChanged();

private:
    friend class AddMarkEdit;
    friend class RemoveMarkEdit;
    friend class InsertPageEdit;

    void placeMark(int position, const Mark &mark);
    void removeMark(int id);
    void placePage(int index, const Page &page);
    void removePage(int index);

    QString m_fileName;
    QList<Page> m_pages;
    QList<Mark> m_marks;
    QUndoStack m_undoStack;
    int m_lastMarkId = 0;
};
