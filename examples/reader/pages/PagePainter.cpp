// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PagePainter.h"

#include "pages/MarkPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <utility>

namespace {

constexpr qreal footerTop = 1060;
const QColor hitColour(0xFF, 0xE0, 0x66);
const QColor currentHitColour(0xFF, 0x9F, 0x40);
const QColor selectionColour(0x33, 0x99, 0xFF, 0x60);
constexpr qreal opacityOnDark = 0.45;
const QColor textOnHitColour(0x1A, 0x1A, 0x1A);

void fillRange(QPainter &painter, const Page &page, const TextRange &range, const QColor &colour)
{
    const QList<QRectF> rects = page.rectsOf(range.start, range.length);
    for (const QRectF &rect : rects)
        painter.fillRect(rect, colour);
}

void paintLines(QPainter &painter, const Page &page, const QColor &ink)
{
    const QRectF visible = painter.clipBoundingRect();
    painter.setPen(ink);
    for (const TextLine &line : page.lines) {
        if (!visible.isEmpty() && !visible.intersects(line.rect.adjusted(0, -4, 60, 4)))
            continue;
        painter.setFont(line.font());
        const qreal ascent = QFontMetricsF(line.font()).ascent();
        painter.drawText(QPointF(line.rect.left(), line.rect.top() + ascent),
                         page.text.mid(line.start, line.length));
    }
}

/** Paints the text of hits again, because on a dark page it would be light on yellow. */
void paintTextOfHits(QPainter &painter, const Page &page, const QList<TextRange> &hits)
{
    QRegion region;
    for (const TextRange &hit : hits) {
        const QList<QRectF> rects = page.rectsOf(hit.start, hit.length);
        for (const QRectF &rect : rects)
            region += rect.toRect();
    }
    if (region.isEmpty())
        return;
    painter.save();
    painter.setClipRegion(region, Qt::IntersectClip);
    paintLines(painter, page, textOnHitColour);
    painter.restore();
}

void paintFooter(QPainter &painter, int index, const QColor &ink)
{
    QFont font;
    font.setPixelSize(14);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QRectF(0, footerTop, pageSize.width(), 24), Qt::AlignCenter,
                     QStringLiteral("— %1 —").arg(index + 1));
}

bool isDark(const PageColours &colours)
{
    return colours.ink.lightness() > colours.paper.lightness();
}

QList<TextRange> hitsOn(int index, const PageDecoration &decoration)
{
    QList<TextRange> hits;
    for (const TextRange &hit : decoration.hits) {
        if (hit.page == index)
            hits.append(hit);
    }
    return hits;
}

/** Paints the hits over a page that is already painted. */
void paintHitsOver(QPainter &painter, const Document &document, int index,
                   const PageColours &colours, const PageDecoration &decoration)
{
    QList<TextRange> hits = hitsOn(index, decoration);
    if (hits.isEmpty())
        return;
    const TextRange current = decoration.currentHit;
    const auto isCurrent = [&current](const TextRange &hit) {
        return hit.page == current.page && hit.start == current.start;
    };
    painter.save();
    // Multiply keeps dark ink readable. Light ink needs a mode that only lightens.
    painter.setCompositionMode(isDark(colours) ? QPainter::CompositionMode_SourceOver
                                               : QPainter::CompositionMode_Multiply);
    painter.setOpacity(isDark(colours) ? opacityOnDark : 1);
    const Page &page = document.page(index);
    for (const TextRange &hit : std::as_const(hits))
        fillRange(painter, page, hit, isCurrent(hit) ? currentHitColour : hitColour);
    painter.restore();
}

bool isShown(const Mark &mark, int index, const PageDecoration &decoration)
{
    if (mark.page != index && mark.page != everyPage)
        return false;
    if (mark.kind == MarkKind::Revision)
        return decoration.revisionsVisible;
    const bool isForScreen = mark.kind == MarkKind::DisplayMask || !mark.isPrinted;
    return !isForScreen || !decoration.forPrint;
}

} // namespace

PageColours PageColours::of(BackgroundStyle style)
{
    switch (style) {
    case Background_Daytime:
        return {QColor(0xFB, 0xFD, 0xFF), QColor(0x10, 0x10, 0x10), QColor(0xE3, 0xEC, 0xF4)};
    case Background_Nighttime:
        return {QColor(0x26, 0x28, 0x2B), QColor(0xC9, 0xCC, 0xD1), QColor(0x16, 0x17, 0x19)};
    case Background_Eyeguard:
        return {QColor(0xCD, 0xEB, 0xCF), QColor(0x1E, 0x33, 0x22), QColor(0xA9, 0xC9, 0xAC)};
    case Background_Parchment:
        return {QColor(0xF4, 0xE4, 0xC1), QColor(0x3B, 0x2C, 0x17), QColor(0xD3, 0xC0, 0x98)};
    default:
        return {Qt::white, QColor(0x22, 0x22, 0x22), QColor(0xC4, 0xC7, 0xCB)};
    }
}

void paintPage(QPainter &painter, const Document &document, int index, const PageColours &colours,
               const PageDecoration &decoration)
{
    paintSheet(painter, document, index, colours, decoration);
    paintOver(painter, document, index, colours, decoration);
}

void paintSheet(QPainter &painter, const Document &document, int index, const PageColours &colours,
                const PageDecoration &decoration)
{
    painter.fillRect(QRectF(QPointF(0, 0), document.sizeOf(index)), colours.paper);
    if (const PageContent *content = document.contentOf(index)) {
        content->painter().paint(painter, {content->index(), decoration.forPrint});
        return;
    }
    const Page &page = document.page(index);
    const QList<TextRange> hits = hitsOn(index, decoration);
    for (const TextRange &hit : hits)
        fillRange(painter, page, hit, hitColour);
    if (decoration.currentHit.page == index)
        fillRange(painter, page, decoration.currentHit, currentHitColour);

    paintLines(painter, page, colours.ink);
    if (isDark(colours))
        paintTextOfHits(painter, page, hits);
    paintFooter(painter, index, colours.ink);
}

void paintOver(QPainter &painter, const Document &document, int index, const PageColours &colours,
               const PageDecoration &decoration)
{
    if (document.contentOf(index))
        paintHitsOver(painter, document, index, colours, decoration);
    for (const Mark &mark : document.marks()) {
        if (isShown(mark, index, decoration))
            paintMark(painter, mark);
    }
    for (const TextRange &range : decoration.selection) {
        if (range.page == index)
            fillRange(painter, document.page(index), range, selectionColour);
    }
}
