// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Links of PageView: the cursor, clicks, and the places to which they lead.

#include "pages/PageView.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextDocument>

namespace {

constexpr qreal leastPercent = 10;
constexpr qreal mostPercent = 6400;

} // namespace

PageLink PageView::linkAt(QPoint position) const
{
    const bool isReading =
        m_tool.gesture == PageTool::Pan || m_tool.gesture == PageTool::SelectText;
    const PagePoint at = pagePointAt(position);
    const PageContent *content =
        isReading && at.page >= 0 ? m_document.contentOf(at.page) : nullptr;
    if (!content)
        return PageLink();
    const QVector<PageLink> links = content->links();
    // The topmost is the last one.
    for (auto link = links.crbegin(); link != links.crend(); ++link) {
        if (link->area.contains(at.point))
            return *link;
    }
    return PageLink();
}

void PageView::showToolCursor()
{
    switch (m_tool.gesture) {
    case PageTool::Pan:
        viewport()->setCursor(Qt::OpenHandCursor);
        break;
    case PageTool::SelectText:
    case PageTool::MarkText:
        viewport()->setCursor(Qt::IBeamCursor);
        break;
    default:
        viewport()->setCursor(Qt::CrossCursor);
        break;
    }
}

void PageView::showCursorAt(QPoint position)
{
    const PageLink link = linkAt(position);
    if (link.isValid())
        viewport()->setCursor(Qt::PointingHandCursor);
    else
        showToolCursor();
    viewport()->setToolTip(link.address.isEmpty() ? QString()
                                                  : Qt::convertFromPlainText(link.address));
}

void PageView::clickLink(const Drag &drag)
{
    const QPoint moved = drag.lastPosition - drag.firstPosition;
    if (moved.manhattanLength() >= QApplication::startDragDistance())
        return;
    const PageLink link = linkAt(drag.firstPosition);
    if (link.isValid())
        Q_EMIT linkClicked(link);
}

void PageView::showPlace(const PagePlace &place)
{
    if (place.page < 0 || place.page >= m_document.pageCount())
        return;
    if (place.percent)
        setZoomMode(ZoomMode(qRound(qBound(leastPercent, *place.percent, mostPercent))));
    setCurrentPage(place.page);
    const QRectF sheet = m_layout.rectOf(place.page);
    const QPointF corner(place.left.value_or(0), place.top.value_or(0));
    const QPointF onView = pageTransform({place.page, sheet}).map(corner);
    const QScopedValueRollback<bool> guard(m_scrollsItself, true);
    const QPointF wanted = onView + scrollOffset() - QPointF(PageLayout::gap, PageLayout::gap);
    // What is in view already should not be moved aside.
    if (place.left && (onView.x() < 0 || onView.x() > viewport()->width() / 2))
        horizontalScrollBar()->setValue(qRound(wanted.x()));
    if (place.top)
        verticalScrollBar()->setValue(qRound(wanted.y()));
}

void PageView::pointOut(int page, const QRectF &rect)
{
    m_framedPage = page;
    m_frame = rect;
    viewport()->update();
}

void PageView::chooseNothing()
{
    setSelection({});
    pointOut(-1, QRectF());
}
