// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/ToolTipCard.h"

#include "toolbar/Latin1.h"

#include <QAction>
#include <QStringList>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int lineLength = 10;

// The missing blank in "<pstyle" and the order of the closing tags are part of the format.
constexpr QLatin1String cardStart =
    latin1("<html><head/><body><p><span style=\"font-weight:600;\">");
constexpr QLatin1String titleEnd = latin1("</span></p>");
constexpr QLatin1String lineStart = latin1("<pstyle=\"line-height:16px\">");
constexpr QLatin1String lineEnd = latin1("</p>");
constexpr QLatin1String cardEnd = latin1("</body></head></html>");

/** Whether a line may end beside the character, as beside ideographs and their punctuation. */
bool isIdeographic(QChar character)
{
    const ushort code = character.unicode();
    const bool isWide = (code >= 0x2e80 && code <= 0xd7ff) || (code >= 0xf900 && code <= 0xfaff);
    const bool isFullWidth = code >= 0xff00 && code <= 0xffef;
    return isWide || isFullWidth || character.isSurrogate();
}

/** Whether a line may end before the character at @p position. */
bool mayBreak(const QString &text, int position)
{
    const QChar before = text.at(position - 1);
    const QChar after = text.at(position);
    if (before.isHighSurrogate() && after.isLowSurrogate())
        return false;
    return after.isSpace() || before.isSpace() || isIdeographic(before) || isIdeographic(after);
}

QStringList linesOf(const QString &description, CardLines kind)
{
    QStringList lines;
    const int length = static_cast<int>(description.size());
    for (int start = 0; start < length;) {
        int end = std::min(start + lineLength, length);
        while (kind == CardLines::Words && end < length && !mayBreak(description, end))
            ++end;
        lines.append(description.mid(start, end - start));
        start = end;
        while (kind == CardLines::Words && start < length && description.at(start).isSpace())
            ++start;
    }
    return lines;
}

} // namespace

QString toolTipCard(const QString &tip, CardLines lines)
{
    if (!tip.contains(QLatin1Char(';')))
        return tip;

    const QStringList parts = tip.split(QLatin1Char(';'));
    const QString &title = parts.at(0);
    const QString &description = parts.at(1);

    const QStringList texts = linesOf(description, lines);

    // Every command has a card: strings that grow would have as much room again.
    QString card;
    card.reserve(cardStart.size() + title.size() + titleEnd.size()
                 + texts.size() * (lineStart.size() + lineEnd.size()) + description.size()
                 + cardEnd.size());
    card += cardStart;
    card += title;
    card += titleEnd;
    for (const QString &text : texts) {
        card += lineStart;
        card += text;
        card += lineEnd;
    }
    card += cardEnd;
    return card;
}

void setToolTipCard(QObject *target, const QString &tip, CardLines lines)
{
    if (tip.isEmpty())
        return;

    const QString card = toolTipCard(tip, lines);
    if (auto *widget = qobject_cast<QWidget *>(target))
        widget->setToolTip(card);
    else if (auto *action = qobject_cast<QAction *>(target))
        action->setToolTip(card);
}

QString toolTipTitle(const QString &tip)
{
    return tip.section(QLatin1Char(';'), 0, 0);
}
