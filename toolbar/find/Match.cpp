// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/Match.h"

#include <QStringView>

#include <algorithm>

namespace {

bool isPartOfWord(QChar letter)
{
    // Half a character outside the basic plane is part of a word, too.
    return letter.isLetterOrNumber() || letter.isSurrogate();
}

/** The best occurrence of the typed letters side by side; one at the start of a word, if any. */
Match adjacentMatch(const QString &typed, const QString &text)
{
    Match best;
    for (auto at = text.indexOf(typed); at >= 0; at = text.indexOf(typed, at + 1)) {
        const auto end = at + typed.size();
        const bool begins = at == 0 || !isPartOfWord(text.at(at - 1));
        const bool ends = end == text.size() || !isPartOfWord(text.at(end));
        const Fit fit = begins && ends ? Fit::Word : begins ? Fit::Prefix : Fit::Substring;
        if (fit < best.fit)
            best = {fit, at};
        if (fit == Fit::Word)
            break;
    }
    return best;
}

bool isSubsequence(const QString &typed, QStringView text)
{
    auto next = typed.begin();
    for (auto letter = text.begin(); letter != text.end() && next != typed.end(); ++letter) {
        if (*letter == *next)
            ++next;
    }
    return next == typed.end();
}

bool holdsLetters(QStringView text, const QString &typed)
{
    return std::all_of(typed.begin(), typed.end(), [&text, &typed](QChar letter) {
        return std::count(text.begin(), text.end(), letter) >= typed.count(letter);
    });
}

/** Letters that are not side by side; the fewer there are besides them, the better. */
Match looseMatch(const QString &typed, QStringView line)
{
    const auto rest = line.size() - typed.size();
    if (isSubsequence(typed, line))
        return {Fit::Subsequence, rest};
    if (holdsLetters(line, typed))
        return {Fit::Letters, rest};
    return {};
}

Match bestLooseMatch(const QString &typed, const QString &text)
{
    Match best;
    qsizetype start = 0;
    while (start < text.size() && best.fit != Fit::Subsequence) {
        const qsizetype found = text.indexOf(QLatin1Char('\n'), static_cast<int>(start));
        const qsizetype end = found < 0 ? text.size() : found;
        const Match match = looseMatch(typed, QStringView(text).mid(start, end - start));
        if (match.fit < best.fit)
            best = match;
        start = end + 1;
    }
    return best;
}

} // namespace

SearchText::SearchText(const QString &text)
{
    const QString plain = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    m_letters.reserve(plain.size());
    for (const QChar letter : plain) {
        if (letter.category() == QChar::Mark_NonSpacing)
            continue;
        m_letters.append(letter);
        m_mask |= quint64(1) << (letter.unicode() % 64);
    }
}

Match matchOf(const SearchText &typed, const SearchText &text, Fit limit)
{
    if (!text.mayHold(typed) || typed.isEmpty())
        return {};

    const Match adjacent = adjacentMatch(typed.letters(), text.letters());
    if (adjacent.fit != Fit::None || limit <= Fit::Subsequence)
        return adjacent;
    return bestLooseMatch(typed.letters(), text.letters());
}
