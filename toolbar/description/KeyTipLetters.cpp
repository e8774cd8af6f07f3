// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/KeyTipLetters.h"

#include "toolbar/Latin1.h"
#include "toolbar/description/Controller.h"

#include <algorithm>

namespace {

constexpr QLatin1String alphabet = latin1("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
/** Few words begin with the first of them; they begin what needs two letters. */
constexpr QLatin1String rareFirst = latin1("ZQXYJKVWUGNBHLRDMPTIAOECFS");

bool isLetter(QChar character)
{
    return character >= QLatin1Char('A') && character <= QLatin1Char('Z');
}

void appendOnce(QString &letters, QChar letter)
{
    if (isLetter(letter) && !letters.contains(letter))
        letters.append(letter);
}

/** The Latin letters of a text: that of its mnemonic, those that begin a word, then the others. */
void appendLetters(QString &letters, const QString &text)
{
    const QString upper = text.toUpper();
    const auto mnemonic = upper.indexOf(QLatin1Char('&'));
    if (mnemonic >= 0 && mnemonic + 1 < upper.size())
        appendOnce(letters, upper.at(mnemonic + 1));
    for (qsizetype i = 0; i < upper.size(); ++i) {
        const bool beginsWord = i == 0 || !isLetter(upper.at(i - 1))
                                || (text.at(i).isUpper() && text.at(i - 1).isLower());
        if (beginsWord)
            appendOnce(letters, upper.at(i));
    }
    for (const QChar character : upper)
        appendOnce(letters, character);
}

/** The name without the short words before it, which tell the area of the host. */
QString withoutArea(const QString &name)
{
    QStringList words = name.split(QLatin1Char('_'));
    if (words.size() > 1)
        words.removeFirst();
    while (words.size() > 1 && words.first().size() == 1)
        words.removeFirst();
    return words.join(QLatin1Char('_'));
}

/** What the letters of a control may be, the best one first. */
QString ownLetters(const Controller &record)
{
    QString letters;
    appendLetters(letters, record.text);
    appendLetters(letters, withoutArea(record.name));
    const QString file = record.icon.section(QLatin1Char('/'), -1);
    appendLetters(letters, file.section(QLatin1Char('.'), 0, 0));
    return letters;
}

/** One way to give letters: with as many letters kept back to begin those of two. */
class Assignment
{
public:
    Assignment(const QList<const Controller *> &records, qsizetype keptBack)
    {
        m_given.resize(static_cast<std::size_t>(records.size()));
        for (qsizetype i = 0; i < records.size(); ++i)
            take(i, KeyTipLetters::described(*records.at(i)));
        for (const QChar letter : QString(rareFirst)) {
            if (m_firsts.size() < keptBack && isFree(letter))
                m_firsts.append(letter);
        }
        QStringList own;
        for (qsizetype i = 0; i < records.size(); ++i) {
            own.append(ownLetters(*records.at(i)));
            giveOne(i, own.at(i));
        }
        for (qsizetype i = 0; i < records.size(); ++i)
            giveOne(i, alphabet);
        for (qsizetype i = 0; i < records.size(); ++i)
            giveTwo(i, own.at(i) + alphabet);
    }

    bool isComplete() const
    {
        return std::none_of(m_given.begin(), m_given.end(),
                            [](const QString &letters) { return letters.isEmpty(); });
    }
    QStringList result() const { return {m_given.begin(), m_given.end()}; }

private:
    QString &given(qsizetype position) { return m_given[static_cast<std::size_t>(position)]; }

    bool isFree(const QString &letters) const
    {
        return std::none_of(m_given.begin(), m_given.end(), [&letters](const QString &given) {
            return KeyTipLetters::collide(given, letters);
        });
    }

    bool take(qsizetype position, const QString &letters)
    {
        if (!given(position).isEmpty() || letters.isEmpty() || !isFree(letters))
            return false;
        given(position) = letters;
        return true;
    }

    void giveOne(qsizetype position, const QString &wanted)
    {
        for (const QChar letter : wanted) {
            if (!m_firsts.contains(letter) && take(position, letter))
                return;
        }
    }

    void giveTwo(qsizetype position, const QString &wanted)
    {
        for (const QChar first : std::as_const(m_firsts)) {
            for (const QChar second : wanted) {
                if (take(position, QString(first) + second))
                    return;
            }
        }
    }

    std::vector<QString> m_given;
    QString m_firsts;
};

} // namespace

QString KeyTipLetters::described(const Controller &record)
{
    const QString letters = record.optIn().keytip.toUpper();
    const bool canBeTyped = std::all_of(letters.begin(), letters.end(), [](QChar character) {
        return isLetter(character)
               || (character >= QLatin1Char('0') && character <= QLatin1Char('9'));
    });
    return canBeTyped ? letters : QString();
}

bool KeyTipLetters::collide(const QString &one, const QString &other)
{
    return !one.isEmpty() && !other.isEmpty() && (one.startsWith(other) || other.startsWith(one));
}

QStringList KeyTipLetters::assigned(const QList<const Controller *> &records)
{
    for (qsizetype keptBack = 0; keptBack < alphabet.size(); ++keptBack) {
        const Assignment assignment(records, keptBack);
        if (assignment.isComplete())
            return assignment.result();
    }
    return Assignment(records, alphabet.size()).result();
}
