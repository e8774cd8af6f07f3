// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** How well what is typed fits a text: whole words best, then the rest in this order. */
enum class Fit
{
    Word,
    Prefix,      ///< The beginning of a word.
    Substring,   ///< Any adjacent letters.
    Subsequence, ///< The letters in their order, with others between them.
    Letters,     ///< The letters in any order.
    None
};

/** A text as it is searched: without case, accents and compatibility forms. */
class SearchText
{
public:
    SearchText() = default;
    explicit SearchText(const QString &text);

    const QString &letters() const { return m_letters; }
    bool isEmpty() const { return m_letters.isEmpty(); }
    /** Whether all letters of the other text may be in this one; false is certain. */
    bool mayHold(const SearchText &other) const { return (other.m_mask & ~m_mask) == 0; }

private:
    QString m_letters;
    quint64 m_mask = 0; ///< A bit for each letter, which several share.
};

/** How a typed word fits a text, and how far from its beginning. */
struct Match
{
    Fit fit = Fit::None;
    qsizetype position = 0;
};

/**
 * @param text  each of its lines is a text of its own
 * @param limit what fits no better than this is not looked for
 */
Match matchOf(const SearchText &typed, const SearchText &text, Fit limit = Fit::None);
