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

bool mayHaveRemark(MarkKind kind)
{
    const bool isOnText = kind <= MarkKind::DeleteLine;
    const bool isShape = kind >= MarkKind::StraightLine && kind <= MarkKind::Ink;
    const bool isBox = kind == MarkKind::TextBox || kind == MarkKind::Note;
    return isOnText || isShape || isBox || kind == MarkKind::Annotation;
}

QString remarkOf(const Mark *mark)
{
    if (!mark)
        return QString();
    QStringList lines = {mark->creator, mark->date.toString(Qt::ISODate)};
    lines.removeAll(QString());
    return lines.join(QChar(u'　')) + QChar(u'\n') + mark->text;
}

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
    const QString tip = link.isValid() ? tipOf(link) : remarkOf(remarkAt(position));
    viewport()->setToolTip(tip.isEmpty() ? QString() : Qt::convertFromPlainText(tip));
}

QString PageView::tipOf(const PageLink &link) const
{
    if (link.attachment >= 0)
        return m_document.file().attachments.value(link.attachment);
    return link.address.isEmpty() ? tr("第 %1 页").arg(link.place.page + 1) : link.address;
}

/** The topmost mark at a place that has a remark; nullptr without one. */
const Mark *PageView::remarkAt(QPoint position) const
{
    const PagePoint at = pagePointAt(position);
    const bool isReading =
        m_tool.gesture == PageTool::Pan || m_tool.gesture == PageTool::SelectText;
    const Mark *found = nullptr;
    for (const Mark &mark : m_document.marks()) {
        if (isReading && mayHaveRemark(mark.kind) && mark.page == at.page && !mark.text.isEmpty()
            && mark.rect().contains(at.point))
            found = &mark;
    }
    return found;
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

bool PageView::isInView(int page, const QRectF &rect) const
{
    const QRectF sheet = m_layout.rectOf(page);
    return !sheet.isNull()
           && QRectF(viewport()->rect()).contains(pageTransform({page, sheet}).mapRect(rect));
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
