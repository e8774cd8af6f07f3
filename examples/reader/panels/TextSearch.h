// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"
#include "pages/PagePainter.h"
#include "panels/TextWalk.h"

#include <toolbar/ToolBarTypes.h>

#include <QMutex>
#include <QStringList>

/** A search in a thread, its hits so far in the order of the pages, and the current hit. */
class TextSearch : public QObject
{
    Q_OBJECT

public:
    /** Further hits are not looked for. */
    static constexpr int mostHits = 50000;

    explicit TextSearch(QObject *parent = nullptr);

    /**
     * Searches again if the text, the options or the document have changed. Otherwise goes to the
     * next hit in the direction of the option, from the last to the first one if necessary.
     *
     * @param fromPage The index of the page where a new search begins.
     */
    void search(const Document &document, const SearchOption &option, int fromPage);
    /** Ends the search and keeps the hits. */
    void stop();
    /** Ends the search and removes the hits. */
    void clear();

    QString content() const { return m_option.content; }
    const QList<TextRange> &hits() const { return m_hits; }
    bool hasHits() const { return !m_hits.isEmpty(); }
    int currentIndex() const { return m_current; }
    TextRange current() const { return m_hits.value(m_current); }
    void setCurrentIndex(int index) { m_current = index; }

    bool isActive() const { return m_walk.isActive(); }
    /** Whether pages were not searched, because of stop() or of too many hits. */
    bool isPartial() const { return m_searched < m_pageCount; }
    int searchedPages() const { return m_searched; }
    int pageCount() const { return m_pageCount; }

Q_SIGNALS:
    /** Hits were inserted; their surroundings are for a list. */
    void found(int index, const QStringList &surroundings);
    /** Pages were searched, or the search has ended. */
    void stepped();

private:
    /** Hits of the thread that were not taken yet. */
    struct Batch
    {
        QList<TextRange> hits;
        QStringList surroundings;
    };

    bool isSameQuestion(const SearchOption &option) const;
    TextWalk::Visit visitor();
    void takeStep();
    int placeOf(const Batch &batch) const;
    void insert(const Batch &batch);
    int nearestHit() const;

    SearchOption m_option;
    QList<TextRange> m_hits;
    int m_current = -1;
    int m_fromPage = 0;
    int m_searched = 0;
    int m_pageCount = 0;
    QMutex m_lock;          ///< Of the batches.
    QList<Batch> m_batches; ///< One for each page with hits.
    TextWalk m_walk;        ///< Last, so that its thread ends first.
};
