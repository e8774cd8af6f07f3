// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Spelling.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/** How many letters must be changed, added or removed; ignores case. */
int distance(const QString &from, const QString &to)
{
    std::vector<int> row(static_cast<std::size_t>(to.size()) + 1);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<int>(i);
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool same = from.at(i).toLower() == to.at(static_cast<int>(j) - 1).toLower();
            const int changed = diagonal + (same ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

/** Whether two neighbouring letters have changed their places, and nothing else. */
bool isSwapped(const QString &word, const QString &meant)
{
    const auto ends = std::mismatch(word.cbegin(), word.cend(), meant.cbegin(), meant.cend());
    const int position = static_cast<int>(std::distance(word.cbegin(), ends.first));
    QString swapped = word;
    if (position + 1 < word.size())
        std::iter_swap(swapped.begin() + position, swapped.begin() + position + 1);
    return swapped == meant;
}

} // namespace

QString Spelling::nearest(const QString &word, const QStringList &candidates)
{
    constexpr int furthest = 2;
    QString best;
    int least = std::min<int>(furthest, static_cast<int>(word.size()) / 2) + 1;
    for (const QString &candidate : candidates) {
        const int steps = distance(word, candidate);
        if (steps < least) {
            least = steps;
            best = candidate;
        }
    }
    return best;
}

bool Spelling::isSlip(const QString &word, const QString &meant)
{
    // Two letters of a short name make another one.
    constexpr int shortLength = 6;
    const int steps = distance(word, meant);
    const int swapped = isSwapped(word, meant) ? 1 : steps;
    return word != meant && std::min(steps, swapped) <= (meant.size() > shortLength ? 2 : 1);
}

QString Spelling::hint(const QString &word, const QStringList &candidates)
{
    const QString meant = nearest(word, candidates);
    return meant.isEmpty() ? QString() : QStringLiteral("; did you mean '%1'?").arg(meant);
}
