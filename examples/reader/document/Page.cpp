// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Page.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

enum class CharacterClass
{
    Blank,
    Sign,
    Letter,
    EastAsian
};

constexpr char16_t firstEastAsian = 0x2E80;

CharacterClass classOf(QChar character)
{
    if (character.isSpace())
        return CharacterClass::Blank;
    if (!character.isLetterOrNumber() && !character.isMark() && !character.isSurrogate())
        return CharacterClass::Sign;
    // Letters of other scripts beyond the first plane are rare; most are Chinese characters.
    return character.unicode() < firstEastAsian ? CharacterClass::Letter
                                                : CharacterClass::EastAsian;
}

} // namespace

QFont TextLine::font() const
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    // Hinted widths depend on the zoom, so rectangles of hits would not match their words.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Page Page::withText(ContentPainter &painter) const
{
    Page page = *this;
    painter.readText(content->index(), page);
    page.isTextRead = true;
    return page;
}

QList<QRectF> Page::rectsOf(int start, int length) const
{
    QList<QRectF> rects;
    for (const TextLine &line : lines) {
        const int from = std::max(start, line.start);
        const int to = std::min(start + length, line.start + line.length);
        if (from >= to)
            continue;
        if (!boxes.isEmpty()) {
            QRectF rect;
            for (int i = from; i < to; ++i)
                rect |= boxes.at(i);
            rects.append(rect);
            continue;
        }
        const qreal left = leftOf(line, from - line.start);
        const qreal right = leftOf(line, to - line.start);
        rects.append(QRectF(left, line.rect.top(), right - left, line.rect.height()));
    }
    return rects;
}

const TextLine *Page::lineAt(QPointF point) const
{
    const TextLine *nearest = nullptr;
    qreal smallest = std::numeric_limits<qreal>::max();
    for (const TextLine &line : lines) {
        const qreal distance = distanceTo(line, point);
        if (distance < smallest) {
            smallest = distance;
            nearest = &line;
        }
    }
    if (!nearest || boxes.isEmpty())
        return nearest;

    // Beside a short line a longer one may be nearer. The line at that height counts, unless it is
    // of another column.
    const QRectF column = nearest->rect;
    for (const TextLine &line : lines) {
        const bool isInColumn =
            line.rect.left() < column.right() && line.rect.right() > column.left();
        if (isInColumn
            && std::make_pair(heightTo(line, point), distanceTo(line, point))
                   < std::make_pair(heightTo(*nearest, point), distanceTo(*nearest, point)))
            nearest = &line;
    }
    return nearest;
}

int Page::positionAt(QPointF point) const
{
    const TextLine *nearest = lineAt(point);
    if (!nearest)
        return -1;

    for (int i = 0; i < nearest->length; ++i) {
        const QRectF box = boxes.value(nearest->start + i);
        const qreal middle = boxes.isEmpty() ? (leftOf(*nearest, i) + leftOf(*nearest, i + 1)) / 2
                                             : box.center().x();
        if (point.x() < middle)
            return nearest->start + i;
    }
    return nearest->start + nearest->length;
}

TextSpan Page::wordAt(QPointF point) const
{
    const TextSpan line = lineOf(point);
    if (line.length == 0)
        return line;
    int start = positionAt(point);
    // The position after a character is the nearest one in its right half.
    const QList<QRectF> before = start > line.start ? rectsOf(start - 1, 1) : QList<QRectF>();
    if (start == line.start + line.length
        || (!before.isEmpty() && before.first().right() > point.x()))
        --start;
    const CharacterClass wanted = classOf(text.at(start));
    int end = start + 1;
    if (wanted == CharacterClass::Sign)
        return {start, 1};
    while (start > line.start && classOf(text.at(start - 1)) == wanted)
        --start;
    while (end < line.start + line.length && classOf(text.at(end)) == wanted)
        ++end;
    return {start, end - start};
}

TextSpan Page::lineOf(QPointF point) const
{
    const TextLine *line = lineAt(point);
    return line ? TextSpan{line->start, line->length} : TextSpan();
}

qreal Page::leftOf(const TextLine &line, int length) const
{
    return line.rect.left()
           + QFontMetricsF(line.font()).horizontalAdvance(text.mid(line.start, length));
}

/** How far a point is above or below a line; 0 beside it. */
qreal Page::heightTo(const TextLine &line, QPointF point)
{
    const qreal down = std::abs(line.rect.center().y() - point.y());
    return std::max(0.0, down - line.rect.height() / 2);
}

qreal Page::distanceTo(const TextLine &line, QPointF point) const
{
    if (boxes.isEmpty())
        return std::abs(line.rect.center().y() - point.y());
    // Lines of a file may be side by side, so the horizontal distance counts.
    const qreal aside = std::abs(line.rect.center().x() - point.x()) - line.rect.width() / 2;
    return heightTo(line, point) + std::max(0.0, aside);
}
