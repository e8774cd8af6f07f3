// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/CommandIndex.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/find/Spelling.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

/** What is in the description of a section, but is no command to be found. */
bool isPassedOver(const Controller &record)
{
    return record.name == Name::findCommand || record.name == Name::noFile;
}

/** The lower, the better the place shows and runs the command itself. */
int distanceOf(const CommandPlace &place)
{
    if (place.record->name.startsWith(Prefix::menu))
        return 3;
    if (place.record->name.startsWith(Prefix::quick))
        return 4;
    if (place.tab)
        return 0;
    return place.holder ? 1 : 2;
}

void appendNew(QStringList &texts, const QString &text)
{
    if (!text.isEmpty() && !texts.contains(text))
        texts.append(text);
}

SearchText joined(const QStringList &texts)
{
    return SearchText(texts.join(QLatin1Char('\n')));
}

} // namespace

CommandIndex::CommandIndex(const CommandPlaces &places, const TextsOf &textsOf)
{
    addPlaces(places);
    m_texts.resize(m_commands.size());
    m_searched.resize(m_commands.size());
    for (std::size_t i = 0; i < m_commands.size(); ++i) {
        QStringList toolTips;
        QStringList keywords;
        for (const CommandPlace &place : m_commands[i].places) {
            const CommandTexts texts = textsOf(place);
            appendNew(m_texts[i], texts.text);
            appendNew(toolTips, texts.toolTip);
            appendNew(keywords, place.record->optIn().keywords);
        }
        SearchTexts &searched = m_searched[i];
        searched[Text] = joined(m_texts[i]);
        searched[Keywords] = joined(keywords);
        searched[ToolTip] = joined(toolTips);
        searched[ObjectName] = SearchText(m_commands[i].name);
    }
}

void CommandIndex::addPlaces(const CommandPlaces &places)
{
    QHash<QString, std::size_t> positions;
    for (const CommandPlace &place : places.all()) {
        if (isPassedOver(*place.record))
            continue;
        const QString name = commandOf(place.record->name);
        const auto known = positions.constFind(name);
        if (known == positions.cend()) {
            positions.insert(name, m_commands.size());
            m_commands.push_back({name, {place}});
        } else {
            m_commands[*known].places.append(place);
        }
    }
    for (Command &command : m_commands) {
        std::stable_sort(command.places.begin(), command.places.end(),
                         [](const CommandPlace &one, const CommandPlace &other) {
                             return distanceOf(one) < distanceOf(other);
                         });
    }
}

bool CommandIndex::Rank::operator<(const Rank &other) const
{
    return std::tie(fit, lastFound, detail, command)
           < std::tie(other.fit, other.lastFound, other.detail, other.command);
}

std::vector<std::size_t> CommandIndex::find(const QString &typed, const QStringList &lastFound,
                                            const std::vector<std::size_t> &candidates) const
{
    std::vector<SearchText> words;
    // Input methods may type wide blanks.
    const QStringList typedWords = typed.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : typedWords)
        words.emplace_back(word);
    QHash<QString, int> ages;
    for (int age = static_cast<int>(lastFound.size()) - 1; age >= 0; --age)
        ages.insert(lastFound.at(age), age);

    std::vector<Rank> ranks;
    for (const std::size_t candidate : candidates) {
        Rank rank;
        rank.command = candidate;
        for (const SearchText &word : words)
            addWord(rank, word, m_searched[candidate]);
        if (rank.fit == Fit::None)
            continue;
        rank.lastFound = ages.value(m_commands[candidate].name, std::numeric_limits<int>::max());
        ranks.push_back(rank);
    }
    std::sort(ranks.begin(), ranks.end());

    std::vector<std::size_t> found;
    found.reserve(ranks.size());
    for (const Rank &rank : ranks)
        found.push_back(rank.command);
    return found;
}

void CommandIndex::addWord(Rank &rank, const SearchText &word, const SearchTexts &texts)
{
    if (rank.fit == Fit::None)
        return;
    constexpr int farthest = 99;
    Fit best = Fit::None;
    int detail = 0;
    for (int field = 0; field < Fields; ++field) {
        const Match match = matchOf(word, texts.at(static_cast<std::size_t>(field)), best);
        if (match.fit >= best)
            continue;
        best = match.fit;
        detail = field * (farthest + 1)
                 + static_cast<int>(std::min<qsizetype>(match.position, farthest));
    }
    rank.fit = std::max(rank.fit, best);
    rank.detail += detail;
}

QSet<QChar> CommandIndex::ideographs() const
{
    QSet<QChar> found;
    for (const QStringList &texts : m_texts)
        found += Spelling::ideographs(texts.join(QString()));
    return found;
}

void CommandIndex::addSpelling(const QHash<QChar, QString> &syllables)
{
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        m_searched[i][Spelt] =
            SearchText(Spelling::spelt(m_texts[i].join(QLatin1Char('\n')), syllables));
}
