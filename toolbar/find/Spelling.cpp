// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/Spelling.h"

#include <QStringList>

#ifdef MRTOOLBAR_HAS_ICU
#include <unicode/utrans.h>

#include <array>
#include <memory>
#endif

namespace {

#ifdef MRTOOLBAR_HAS_ICU

struct Closing
{
    void operator()(UTransliterator *transliterator) const { utrans_close(transliterator); }
};

QString syllable(const UTransliterator *transliterator, QChar ideograph)
{
    constexpr int32_t room = 32;
    std::array<UChar, room> text{ideograph.unicode()};
    int32_t length = 1;
    int32_t limit = 1;
    UErrorCode error = U_ZERO_ERROR;
    utrans_transUChars(transliterator, text.data(), &length, room, 0, &limit, &error);
    if (U_FAILURE(error) || text[0] == ideograph.unicode())
        return {};
    return QString::fromUtf16(text.data(), length).trimmed();
}

#endif

/** Both spellings of a word. */
QString speltWord(const QString &word, const QHash<QChar, QString> &syllables)
{
    QString initials;
    QString whole;
    for (const QChar letter : word) {
        const QString syllable = syllables.value(letter);
        initials += syllable.isEmpty() ? letter : syllable.at(0);
        whole += syllable.isEmpty() ? QString(letter) : syllable;
    }
    return whole == word ? QString() : initials + QLatin1Char(' ') + whole;
}

} // namespace

QSet<QChar> Spelling::ideographs(const QString &text)
{
    QSet<QChar> found;
    for (const QChar letter : text) {
        if (letter.script() == QChar::Script_Han)
            found.insert(letter);
    }
    return found;
}

QHash<QChar, QString> Spelling::syllables(const QSet<QChar> &ideographs)
{
    QHash<QChar, QString> found;
#ifdef MRTOOLBAR_HAS_ICU
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UTransliterator, Closing> transliterator(
        utrans_openU(u"Han-Latin; Latin-ASCII", -1, UTRANS_FORWARD, nullptr, 0, nullptr, &error));
    if (U_FAILURE(error))
        return found;
    for (const QChar ideograph : ideographs) {
        const QString letters = syllable(transliterator.get(), ideograph);
        if (!letters.isEmpty())
            found.insert(ideograph, letters);
    }
#else
    Q_UNUSED(ideographs)
#endif
    return found;
}

QString Spelling::spelt(const QString &text, const QHash<QChar, QString> &syllables)
{
    QStringList words;
    QString word;
    const auto endWord = [&] {
        const QString spelling = speltWord(word, syllables);
        if (!spelling.isEmpty())
            words.append(spelling);
        word.clear();
    };
    for (const QChar letter : text) {
        if (letter.isLetterOrNumber())
            word += letter;
        else
            endWord();
    }
    endWord();
    return words.join(QLatin1Char(' '));
}
