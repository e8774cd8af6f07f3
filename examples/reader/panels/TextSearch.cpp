// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/TextSearch.h"

#include <QRegularExpression>

namespace {

QRegularExpression expressionFor(const SearchOption &option)
{
    // A word may contain a line break, and a blank may be a line break.
    const QString lineBreak = QStringLiteral("\\n?");
    QStringList characters;
    for (int i = 0; i < option.content.size(); ++i) {
        const bool isPair = option.content.at(i).isHighSurrogate();
        const QString character = option.content.mid(i, isPair ? 2 : 1);
        i += isPair ? 1 : 0;
        characters.append(character == QLatin1String(" ") ? QStringLiteral("\\s+")
                                                          : QRegularExpression::escape(character));
    }
    QString pattern = characters.join(lineBreak);
    // Every Chinese character counts as a word; other words are runs of letters and digits.
    if (option.wholeWord)
        pattern = QStringLiteral("(?<![A-Za-z0-9_])%1(?![A-Za-z0-9_])").arg(pattern);
    QRegularExpression expression(pattern);
    // The option's text is "区分大小写" (match case), so a checked option is case sensitive.
    if (!option.noCase)
        expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption);
    return expression;
}

} // namespace

void TextSearch::search(const Document &document, const SearchOption &option, int fromPage)
{
    const bool forwards = option.direction != 0;
    if (m_current < 0 || !isSameQuestion(option)) {
        m_option = option;
        findHits(document);
        startAt(fromPage, forwards);
        return;
    }
    const int count = int(m_hits.size());
    m_current = (m_current + (forwards ? 1 : count - 1)) % count;
}

void TextSearch::clear()
{
    m_hits.clear();
    m_current = -1;
    m_option = SearchOption();
}

bool TextSearch::isSameQuestion(const SearchOption &option) const
{
    return option.content == m_option.content && option.wholeWord == m_option.wholeWord
           && option.noCase == m_option.noCase;
}

void TextSearch::findHits(const Document &document)
{
    m_hits.clear();
    const QRegularExpression expression = expressionFor(m_option);
    for (int page = 0; page < document.pageCount(); ++page) {
        QRegularExpressionMatchIterator matches = expression.globalMatch(document.page(page).text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            m_hits.append({page, int(match.capturedStart()), int(match.capturedLength())});
        }
    }
}

void TextSearch::startAt(int page, bool forwards)
{
    m_current = m_hits.isEmpty() ? -1 : 0;
    if (m_hits.isEmpty())
        return;
    const int count = int(m_hits.size());
    if (forwards) {
        for (int i = count - 1; i >= 0 && m_hits.at(i).page >= page; --i)
            m_current = i;
        return;
    }
    m_current = count - 1;
    for (int i = 0; i < count && m_hits.at(i).page <= page; ++i)
        m_current = i;
}
