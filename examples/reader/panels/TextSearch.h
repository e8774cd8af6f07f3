// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"
#include "pages/PagePainter.h"

#include <toolbar/ToolBarTypes.h>

/** The hits of one search and the current one. */
class TextSearch
{
public:
    /**
     * Searches again if the text, the options or the document have changed. Otherwise goes to the
     * next hit in the direction of the option, from the last to the first one if necessary.
     *
     * @param fromPage The index of the page where a new search begins.
     */
    void search(const Document &document, const SearchOption &option, int fromPage);

    /** Removes the hits. */
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
