// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/TextSearch.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

constexpr int contextLength = 8;

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

QString surroundingsOf(const Page &page, const TextRange &hit)
{
    const int from = std::max(0, hit.start - contextLength);
    const int length = hit.start - from + hit.length + contextLength;
    return page.text.mid(from, length).replace(QChar(u'\n'), QChar(u' ')).trimmed();
}

bool isBefore(const TextRange &hit, int page)
{
    return hit.page < page;
}

} // namespace

TextSearch::TextSearch(QObject *parent)
    : QObject(parent)
{
    connect(&m_walk, &TextWalk::stepped, this, &TextSearch::takeStep);
}

void TextSearch::search(const Document &document, const SearchOption &option, int fromPage)
{
    const bool isDown = option.direction != 0;
    if (!isSameQuestion(option) || (m_current < 0 && !isActive())) {
        clear();
        m_option = option;
        m_fromPage = fromPage;
        m_pageCount = document.pageCount();
        m_walk.start(document.pages(), fromPage, isDown, visitor());
        Q_EMIT stepped();
        return;
    }
    m_option = option;
    const int count = int(m_hits.size());
    if (count > 0)
        m_current = (m_current + (isDown ? 1 : count - 1)) % count;
}

void TextSearch::stop()
{
    m_walk.stop();
    takeStep();
}

void TextSearch::clear()
{
    m_walk.stop();
    m_batches.clear();
    m_hits.clear();
    m_current = -1;
    m_searched = 0;
    m_pageCount = 0;
    m_option = SearchOption();
}

bool TextSearch::isSameQuestion(const SearchOption &option) const
{
    return option.content == m_option.content && option.wholeWord == m_option.wholeWord
           && option.noCase == m_option.noCase;
}

TextWalk::Visit TextSearch::visitor()
{
    return [this, expression = expressionFor(m_option), count = 0](int index,
                                                                   const Page &page) mutable {
        Batch batch;
        QRegularExpressionMatchIterator matches = expression.globalMatch(page.text);
        while (matches.hasNext() && count < mostHits) {
            const QRegularExpressionMatch match = matches.next();
            const TextRange hit{index, int(match.capturedStart()), int(match.capturedLength())};
            batch.hits.append(hit);
            batch.surroundings.append(surroundingsOf(page, hit));
            ++count;
        }
        if (!batch.hits.isEmpty()) {
            const QMutexLocker guard(&m_lock);
            m_batches.append(batch);
        }
        return count < mostHits;
    };
}

void TextSearch::takeStep()
{
    QList<Batch> batches;
    {
        const QMutexLocker guard(&m_lock);
        batches = std::exchange(m_batches, {});
    }
    m_searched = m_walk.visitedCount();
    std::sort(batches.begin(), batches.end(), [](const Batch &one, const Batch &other) {
        return one.hits.first().page < other.hits.first().page;
    });
    // Neighbouring pages are inserted together, because there may be thousands of them.
    Batch joined;
    for (const Batch &batch : std::as_const(batches)) {
        if (!joined.hits.isEmpty() && placeOf(batch) != placeOf(joined))
            insert(std::exchange(joined, {}));
        joined.hits += batch.hits;
        joined.surroundings += batch.surroundings;
    }
    if (!joined.hits.isEmpty())
        insert(joined);
    Q_EMIT stepped();
}

int TextSearch::placeOf(const Batch &batch) const
{
    const int page = batch.hits.first().page;
    return int(std::lower_bound(m_hits.cbegin(), m_hits.cend(), page, isBefore) - m_hits.cbegin());
}

void TextSearch::insert(const Batch &batch)
{
    const int index = placeOf(batch);
    m_hits = m_hits.mid(0, index) + batch.hits + m_hits.mid(index);
    if (m_current < 0)
        m_current = nearestHit();
    else if (m_current >= index)
        m_current += int(batch.hits.size());
    Q_EMIT found(index, batch.surroundings);
}

/** The first hit on the page where the search began or after it; before it in a search upwards. */
int TextSearch::nearestHit() const
{
    const bool isDown = m_option.direction != 0;
    const int page = isDown ? m_fromPage : m_fromPage + 1;
    const auto place = std::lower_bound(m_hits.cbegin(), m_hits.cend(), page, isBefore);
    const int count = int(m_hits.size());
    const int index = int(place - m_hits.cbegin());
    return isDown ? index % count : (index + count - 1) % count;
}
