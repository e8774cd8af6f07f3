// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// The painting of PageView.

#include "pages/MarkPainter.h"
#include "pages/PageView.h"

#include <QPainter>

namespace {

constexpr qreal frameGap = 4; // In pixels.

} // namespace

void PageView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), colours().desk);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (!m_document.isOpen())
        paintHint(painter);
    const QRectF visible(scrollOffset(), viewport()->size());
    const QVector<PageLayout::Place> places =
        m_layout.placesAround(visible.top(), visible.bottom());
    for (const PageLayout::Place &place : places) {
        if (place.rect.intersects(visible))
            paintPlace(painter, place);
    }
    prepareNext(visible);
    m_cache.request();
}

/** Has the pages painted that one step forwards would show. */
void PageView::prepareNext(const QRectF &visible)
{
    PageLayout next = m_layout;
    QRectF window = visible.translated(0, visible.height());
    if (!isFlow(m_layoutMode)) {
        const int perRow = pagesPerRow(m_layoutMode);
        const int page = m_currentPage - m_currentPage % perRow + perRow;
        if (page >= m_document.pageCount())
            return;
        next = layoutAround(page, viewport()->size());
        window = QRectF(QPointF(), viewport()->size());
    }
    const QVector<PageLayout::Place> places = next.placesAround(window.top(), window.bottom());
    for (const PageLayout::Place &place : places) {
        if (m_document.contentOf(place.page) && place.rect.intersects(window))
            m_cache.prepare(sheetOf(place.page), place.rect, window);
    }
}

PageCache::Sheet PageView::sheetOf(int page) const
{
    return {m_document.contentOf(page), m_document.sizeOf(page), scale(),
            m_document.quarters(),      devicePixelRatioF(),     colours()};
}

PageColours PageView::colours() const
{
    PageColours colours = PageColours::of(m_background);
    // A light desk would blind beside dark panels; a chosen background stays what it is.
    const QColor window = palette().color(QPalette::Window);
    if (m_background == Background_Default && window.lightness() < 128)
        colours.desk = window.darker(150);
    return colours;
}

void PageView::paintPlace(QPainter &painter, const PageLayout::Place &place)
{
    painter.save();
    const QRectF sheet = place.rect.translated(-QPointF(scrollOffset()));
    painter.fillRect(sheet.translated(2, 2), QColor(0, 0, 0, 50));
    painter.setClipRect(sheet);
    const PageColours colours = this->colours();
    const bool isFromFile = m_document.contentOf(place.page);
    if (isFromFile)
        m_cache.draw(painter, sheetOf(place.page), sheet);
    painter.setTransform(pageTransform(place), true);
    if (!isFromFile)
        paintSheet(painter, m_document, place.page, colours, m_decoration);
    paintOver(painter, m_document, place.page, colours, m_decoration);
    if (m_drag.isActive && m_drag.start.page == place.page && !m_drag.mark.points.isEmpty())
        paintMark(painter, m_drag.mark);
    if (place.page == m_framedPage)
        paintFrame(painter);
    painter.restore();
}

void PageView::paintFrame(QPainter &painter) const
{
    // As wide and as far from the mark at every zoom, and seen on light and on dark paper.
    const qreal pixel = 1 / scale();
    const qreal gap = frameGap * pixel;
    const QRectF frame = m_frame.adjusted(-gap, -gap, gap, gap);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 5 * pixel));
    painter.drawRoundedRect(frame, gap, gap);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3 * pixel));
    painter.drawRoundedRect(frame, gap, gap);
}

void PageView::paintHint(QPainter &painter)
{
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    painter.setFont(font);
    painter.setPen(colours().desk.lightness() < 128 ? QColor(Qt::white) : colours().ink);
    painter.drawText(viewport()->rect(), Qt::AlignCenter,
                     tr("没有打开的文档\n按 Ctrl+O 打开一个文件"));
}
