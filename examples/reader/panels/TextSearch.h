// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"
#include "pages/PagePainter.h"

#include <toolbar/ToolBarTypes.h>

/** The hits of one search, and which of them the reader looks at. */
class TextSearch
{
public:
    /**
     * Does what the option says: finds anew if the question or the document has changed, else goes
     * to the next hit in its direction, around the end.
     *
     * @param fromPage where a new search begins, as an index.
     */
    void search(const Document &document, const SearchOption &option, int fromPage);

    /** Forgets the hits; the next search begins anew. */
    void clear();

    QString content() const { return m_option.content; }
    const QList<TextRange> &hits() const { return m_hits; }
    bool hasHits() const { return !m_hits.isEmpty(); }
    int currentIndex() const { return m_current; }
    TextRange current() const { return m_hits.value(m_current); }
    void setCurrentIndex(int index) { m_current = index; }

private:
    bool isSameQuestion(const SearchOption &option) const;
    void findHits(const Document &document);
    void startAt(int page, bool forwards);

    SearchOption m_option;
    QList<TextRange> m_hits;
    int m_current = -1;
};
