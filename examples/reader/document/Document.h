// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/DocumentEdits.h"
#include "document/OfdFile.h"
#include "document/PageSurvey.h"
#include "document/Refusal.h"

#include <QCache>
#include <QList>
#include <QObject>
#include <QUndoStack>

#include <optional>

/**
 * A document with marks on its pages. The pages are read from an OFD file or generated.
 *
 * Every change of the document and every rotation of its pages can be undone.
 */
class Document : public QObject, private EditableDocument
{
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);

    /** On failure changes nothing and sets @p error to one sentence. */
    bool open(const QString &fileName, QString *error, int body = Ofd::firstReadable);
    /** Generates pages; the name is their seed, so that one name always gives the same text. */
    void openGenerated(const QString &name);
    void close();

    bool isOpen() const { return !m_pages.isEmpty(); }
    QString fileName() const { return m_fileName; }
    QString title() const;
    /** The further content of the file; empty for generated pages. */
    const OfdFile &file() const { return m_file; }
    bool isGenerated() const { return m_file.archive.isEmpty(); }
    /** One sentence that says why the author forbids an act; empty if it is allowed. */
    QString refusalOf(Act act) const { return ::refusalOf(act, m_file.permissions); }

    int pageCount() const { return int(m_pages.size()); }
    /** The page with its text, which takes time now and then; sizeOf() does not need it. */
    Page page(int index) const;
    /** All pages; those from a file have no text. Other threads read it with painters of their own.
     */
    QList<Page> pages() const { return m_pages; }
    QSizeF sizeOf(int page) const { return m_pages.at(page).size; }
    /** The content that paints the page; nullptr for a generated page, painted from its lines. */
    const PageContent *contentOf(int page) const { return m_pages.at(page).content.get(); }
    /** Why a page of a file is empty; an empty text also as long as it was not read. */
    QString faultOf(int page) const;
    /** The width of the widest page and the height of the highest. */
    QSizeF largestSize() const { return m_largestSize; }
    const QList<Mark> &marks() const override { return m_marks; }
    bool hasPageOf(const Mark &mark) const;
    /** The bookmarks of the file in its order, and then the new ones by page. */
    const QList<NamedPlace> &bookmarks() const { return m_bookmarks; }

    QUndoStack &undoStack() { return m_undoStack; }
    const QUndoStack &undoStack() const { return m_undoStack; }
    /** Whether there are unsaved changes; a rotation of the pages is none. */
    bool isModified() const;

    /** The rotation of the pages, clockwise, in quarter turns: 0 to 3. */
    int quarters() const { return m_quarters; }
    void turn(int quarters, const QString &what);

    void addMark(Mark mark, const QString &what);
    /** Removes the ink near a point; returns a mark that has to stay because it is read-only. */
    std::optional<Mark> eraseInk(int page, QPointF point, qreal radius);
    void deleteMark(int id, const QString &what);
    void setMarkText(int id, const QString &text);
    /** The mark of that identifier; nullptr if there is none. */
    const Mark *markOf(int id) const;
    /** Adds a bookmark for a page that is named after it, unless there is one already. */
    void addBookmark(int page);
    void removeBookmark(int index);
    void insertPage(int index, const Page &page, const QString &what);
    /** The index that a page has in the file; -1 for an inserted one. */
    int filePageOf(int page) const;
    /** The page that has that index in the file. */
    int pageOfFilePage(int filePage) const;

Q_SIGNALS:
    /** Marks were added, changed or removed. */
    void marksChanged();
    void bookmarksChanged();
    /** Pages look different, because annotations of the file were removed or restored. */
    void contentChanged();
    /** Pages were added or removed; the pages of marks may have changed. */
    void pagesChanged();
    /** The true sizes of pages became known. */
    void sizesChanged();
    /** More became known about the pages of a file: faultOf() or what is left out. */
    void learnt();
    /** The rotation of the pages has changed. */
    void turned();

private:
    void replace(const QString &fileName, const QList<Page> &pages, const OfdFile &file);
    void pagesReplaced();
    void measureLargest();
    void learn(const QVector<int> &filePages);
    void adoptMarks();
    void setHidden(const Mark &mark, bool isHidden);

    void placeMark(int position, const Mark &mark) override;
    void removeMark(int id) override;
    void replaceMark(const Mark &mark) override;
    void replaceBookmarks(const QList<NamedPlace> &bookmarks) override;
    void placePage(int index, const Page &page) override;
    void removePage(int index) override;
    void turnBy(int quarters) override;

    QString m_fileName;
    OfdFile m_file;
    std::unique_ptr<PageSurvey> m_survey;
    QList<Page> m_pages;
    mutable QCache<const PageContent *, Page> m_texts; ///< Costs are in kilobytes.
    QSizeF m_largestSize;
    QList<Mark> m_marks;
    QList<NamedPlace> m_bookmarks;
    QUndoStack m_undoStack;
    int m_lastMarkId = 0;
    int m_quarters = 0;
};
