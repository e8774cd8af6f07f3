// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Names.h"
#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

#include <initializer_list>

namespace {

constexpr int lineLength = 10; ///< Of tooltip cards, in characters.

/** Whether the character is part of a word with letters, which a reader does not expect cut. */
bool isOfWord(QChar character)
{
    constexpr ushort firstIdeographic = 0x2e80;
    return character.isLetterOrNumber() && character.unicode() < firstIdeographic;
}

/** The word that the end of a line falls into; empty if there is none. */
QString cutWord(const QString &text)
{
    for (int end = lineLength; end < text.size(); end += lineLength) {
        if (!isOfWord(text.at(end - 1)) || !isOfWord(text.at(end)))
            continue;
        int first = end;
        int last = end;
        while (first > 0 && isOfWord(text.at(first - 1)))
            --first;
        while (last < text.size() && isOfWord(text.at(last)))
            ++last;
        return text.mid(first, last - first);
    }
    return QString();
}

void checkCard(const QString &tip, SourcePosition position, const CheckOptions &options,
               Findings &findings)
{
    const QStringList parts = tip.split(QLatin1Char(';'));
    if (parts.size() > 2)
        findings.warn("tooltip-third-part", position,
                      QStringLiteral("a tooltip has a title and a text with one ';' between them; "
                                     "\"%1\" and what follows is not shown; write it with "
                                     "another sign")
                          .arg(parts.at(2).trimmed()));
    const QString word = parts.size() > 1 ? cutWord(parts.at(1)) : QString();
    if (!word.isEmpty() && !options.hasToolTipWords)
        findings.warn(
            "tooltip-cuts-word", position,
            QStringLiteral("the lines of a tooltip end after ten characters, here in "
                           "\"%1\"; the host should set the skin key 'tooltipwords' (then "
                           "check with --tooltipwords), or leave the ';' out")
                .arg(word));
}

/** Whether the tooltip is one; that of a field of a search is its hint. */
bool showsToolTip(Role role)
{
    return role != Role::SearchField && role != Role::ExtraField && role != Role::MenuEntry;
}

void checkToolTip(const SourceElement &element, const CheckOptions &options, Findings &findings)
{
    const QString tip = element.record.tooltip;
    const SourcePosition position = element.positionOf("tooltip");
    const auto separator = tip.indexOf(QLatin1Char(';'));
    if (element.role != Role::AdditionalButton || element.record.name != Name::fold
        || separator < 0) {
        checkCard(tip, position, options, findings);
        return;
    }
    // One for each of two buttons.
    checkCard(tip.mid(separator + 1), position, options, findings);
}

} // namespace

void Rules::checkToolTips(const SourceDocument &document, const CheckOptions &options,
                          Findings &findings)
{
    for (const SourceElement &element : document.elements) {
        if (Vocabulary::usesAttribute(element.role, QStringLiteral("tooltip"))
            && showsToolTip(element.role))
            checkToolTip(element, options, findings);
        if (Vocabulary::usesAttribute(element.role, QStringLiteral("disabletip")))
            checkCard(element.record.disabletip, element.positionOf("disabletip"), options,
                      findings);
    }
}
