// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PdfText.h"

#include "document/Page.h"
#include "pages/HiddenFont.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr int pixelSize = 20;
constexpr char16_t firstEastAsian = 0x2E80;

/** Characters of one kind are about equally wide, so that a part of them keeps their places. */
enum class Kind
{
    Blank,
    Narrow,
    Wide
};

Kind kindOf(QChar character)
{
    if (character.isSpace())
        return Kind::Blank;
    return character.unicode() < firstEastAsian ? Kind::Narrow : Kind::Wide;
}

int lengthOfPart(const QString &text, int start, int end)
{
    int at = start + 1;
    while (at < end && kindOf(text.at(at)) == kindOf(text.at(start)))
        ++at;
    return at - start;
}

QRectF rectOf(const Page &page, int start, int length)
{
    QRectF rect;
    for (int i = start; i < start + length; ++i)
        rect |= page.boxes.value(i);
    return rect;
}

void addPart(QPainter &painter, const QString &text, const QRectF &rect)
{
    const QFontMetricsF metrics = painter.fontMetrics();
    const qreal width = metrics.horizontalAdvance(text);
    if (width <= 0 || rect.isEmpty())
        return;
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / width, rect.height() / metrics.height());
    painter.drawText(QPointF(0, metrics.ascent()), text);
    painter.restore();
}

} // namespace

void addHiddenText(QPainter &painter, const Page &page)
{
    if (!page.content)
        return; // A generated page is painted as text.
    painter.save();
    painter.setFont(HiddenFont::font(pixelSize));
    painter.setPen(Qt::black);
    for (const TextLine &line : page.lines) {
        const int end = line.start + line.length;
        for (int at = line.start; at < end;) {
            const int length = lengthOfPart(page.text, at, end);
            // Viewers take a gap for a blank; Qt would write a tab for the glyph of the blank.
            if (kindOf(page.text.at(at)) != Kind::Blank)
                addPart(painter, page.text.mid(at, length), rectOf(page, at, length));
            at += length;
        }
    }
    painter.restore();
}
