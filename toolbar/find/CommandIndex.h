// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/CommandPlaces.h"
#include "toolbar/find/Match.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <array>
#include <functional>
#include <vector>

/** What a command is called in the language on show. */
struct CommandTexts
{
    QString text;
    QString toolTip;
};

/**
 * The commands of a description with all that they are found by. A command is listed once, wherever
 * it stands, also as "menu_NAME" and "qbar_NAME".
 */
class CommandIndex
{
public:
    struct Command
    {
        QString name; ///< Without a prefix.
        /** The best one to run it at first: rows, menus, the top line, what only leads to it. */
        QList<CommandPlace> places;
    };

    using TextsOf = std::function<CommandTexts(const CommandPlace &)>;

    CommandIndex(const CommandPlaces &places, const TextsOf &textsOf);

    /** In the order of the description. */
    const std::vector<Command> &commands() const { return m_commands; }

    /**
     * Those of the candidates that fit all words of @p typed, the best first; of those that fit
     * equally well, the ones of @p lastFound first. Nothing typed fits all. What does not fit does
     * not fit more letters either.
     */
    std::vector<std::size_t> find(const QString &typed, const QStringList &lastFound,
                                  const std::vector<std::size_t> &candidates) const;

    /** The ideographs in the texts of the commands. */
    QSet<QChar> ideographs() const;
    /** Has the commands be found by the spelling of their texts, too. */
    void addSpelling(const QHash<QChar, QString> &syllables);

private:
    /** In the order in which they count where a word fits several of them equally well. */
    enum Field
    {
        Text,
        Keywords,
        Spelt,
        ToolTip,
        ObjectName,
        Fields
    };
    using SearchTexts = std::array<SearchText, Fields>;

    /** What the commands found are sorted by. */
    struct Rank
    {
        Fit fit = Fit::Word; ///< Of the word that fits worst.
        int lastFound = 0;
        int detail = 0;
        std::size_t command = 0;

        bool operator<(const Rank &other) const;
    };

    void addPlaces(const CommandPlaces &places);
    static void addWord(Rank &rank, const SearchText &word, const SearchTexts &texts);

    std::vector<Command> m_commands;
    std::vector<QStringList> m_texts; ///< By command: the texts of all its places.
    std::vector<SearchTexts> m_searched;
};
