// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Mouse, wheel and key events of PageView.

#include "pages/PageView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

constexpr qreal smallestShape = 4;
constexpr QPointF textBoxCorner(190, 76);

QPolygonF cornersOf(const QList<QRectF> &rects)
{
    QPolygonF corners;
    for (const QRectF &rect : rects)
        corners << rect.topLeft() << rect.topRight() << rect.bottomRight() << rect.bottomLeft();
    return corners;
}

/** The direction of a key in the document: 1 forwards, -1 backwards, 0 for another key. */
int directionOf(const QKeyEvent &event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    switch (event.key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
    case Qt::Key_PageDown:
        return 1;
    case Qt::Key_Up:
    case Qt::Key_Left:
    case Qt::Key_PageUp:
        return -1;
    case Qt::Key_Space:
        return event.modifiers() & Qt::ShiftModifier ? -1 : 1;
    default:
        return 0;
    }
}

} // namespace

void PageView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_document.isOpen())
        startDrag(event->pos(), event->modifiers());
    else if (event->button() == Qt::BackButton)
        goBack();
    else if (event->button() == Qt::ForwardButton)
        goForward();
}

void PageView::startDrag(QPoint position, Qt::KeyboardModifiers modifiers)
{
    pointOut(-1, QRectF());
    m_drag = Drag();
    m_drag.isActive = true;
    m_drag.firstPosition = position;
    m_drag.lastPosition = position;
    m_drag.start = pagePointAt(position);
    m_drag.mark.page = m_drag.start.page;
    m_drag.mark.kind = m_tool.kind;
    m_drag.mark.colour = m_tool.colour;
    m_drag.mark.width = m_tool.width;
    m_drag.mark.text = m_tool.sign;
    switch (m_tool.gesture) {
    case PageTool::Pan:
        viewport()->setCursor(Qt::ClosedHandCursor);
        break;
    case PageTool::SelectText:
    case PageTool::MarkText:
        startSelection(modifiers);
        break;
    case PageTool::DrawShape:
    case PageTool::DrawInk:
        m_drag.mark.points << m_drag.start.point;
        break;
    case PageTool::Erase:
        Q_EMIT inkRubbed(m_drag.start.page, m_drag.start.point, m_tool.width);
        break;
    case PageTool::PlaceText:
        break;
    }
}

void PageView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_drag.isActive) {
        showCursorAt(event->pos());
        return;
    }
    const QPoint moved = event->pos() - m_drag.lastPosition;
    m_drag.lastPosition = event->pos();
    const PagePoint now = pagePointAt(event->pos());
    switch (m_tool.gesture) {
    case PageTool::Pan:
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
        break;
    case PageTool::SelectText:
    case PageTool::MarkText:
        selectTextTo(now);
        break;
    case PageTool::DrawShape:
    case PageTool::DrawInk:
        extendDrawing(now);
        break;
    case PageTool::Erase:
        Q_EMIT inkRubbed(now.page, now.point, m_tool.width);
        break;
    case PageTool::PlaceText:
        break;
    }
}

void PageView::extendDrawing(const PagePoint &to)
{
    if (to.page != m_drag.start.page)
        return;
    QPolygonF &points = m_drag.mark.points;
    if (m_tool.gesture == PageTool::DrawShape && points.size() > 1)
        points.last() = to.point;
    else
        points << to.point;
    viewport()->update();
}

void PageView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_drag.isActive)
        finishDrag();
}

void PageView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const PagePoint place = pagePointAt(event->pos());
    const PageContent *content = place.page >= 0 ? m_document.contentOf(place.page) : nullptr;
    const int signature = content ? content->signatureAt(place.point) : -1;
    const Mark *remark = remarkAt(event->pos());
    if (signature >= 0 && m_tool.gesture == PageTool::Pan)
        Q_EMIT signatureAsked(signature);
    else if (remark && m_tool.gesture == PageTool::Pan)
        Q_EMIT remarkAsked(remark->id);
    else if (place.page >= 0 && m_tool.gesture == PageTool::SelectText)
        selectAround(event->pos(), false);
    else
        mousePressEvent(event);
}

void PageView::finishDrag()
{
    // A connected slot may run a dialog, during which no drag must be active.
    const Drag drag = m_drag;
    m_drag = Drag();
    viewport()->update();
    QList<Mark> marks = {drag.mark};
    const QRectF rect = drag.mark.rect();
    switch (m_tool.gesture) {
    case PageTool::SelectText:
        if (!drag.hasSelected)
            setSelection({});
        finishSelection();
        [[fallthrough]];
    case PageTool::Pan:
        showCursorAt(drag.lastPosition);
        clickLink(drag);
        return;
    case PageTool::MarkText:
        marks = marksOnSelection();
        setSelection({});
        break;
    case PageTool::DrawShape:
        if (std::max(rect.width(), rect.height()) < smallestShape)
            return;
        break;
    case PageTool::PlaceText:
        marks.first().points << drag.start.point << drag.start.point + textBoxCorner;
        break;
    case PageTool::DrawInk:
        break;
    default:
        return;
    }
    for (const Mark &mark : std::as_const(marks))
        Q_EMIT markDrawn(mark);
}

void PageView::addHits(const QList<TextRange> &hits)
{
    m_decoration.hits = hits;
    viewport()->update();
}

QList<Mark> PageView::marksOnSelection() const
{
    QList<Mark> marks;
    for (const TextRange &range : selection()) {
        const QList<QRectF> rects = m_document.page(range.page).rectsOf(range.start, range.length);
        if (rects.isEmpty())
            continue;
        Mark mark;
        mark.kind = m_tool.kind;
        mark.colour = m_tool.colour;
        mark.width = m_tool.width;
        mark.text = m_tool.sign;
        mark.page = range.page;
        mark.points = cornersOf(rects);
        marks.append(mark);
    }
    return marks;
}

void PageView::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y();
    if (event->modifiers() & Qt::ControlModifier) {
        if (turn != 0)
            Q_EMIT zoomStepAsked(turn > 0);
        event->accept();
        return;
    }
    const QScrollBar *bar = verticalScrollBar();
    const bool atEnd = turn < 0 ? bar->value() == bar->maximum() : bar->value() == bar->minimum();
    if (turn != 0 && atEnd && turnPage(turn < 0 ? 1 : -1)) {
        event->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

bool PageView::turnPage(int direction)
{
    if (isFlow(m_layoutMode) || !m_document.isOpen())
        return false;
    const int perRow = pagesPerRow(m_layoutMode);
    const int page = m_currentPage - m_currentPage % perRow + direction * perRow;
    if (page < 0 || page >= m_document.pageCount())
        return false;
    setCurrentPage(page);
    if (direction < 0)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    return true;
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        Q_EMIT copyAsked();
    else if (event->key() == Qt::Key_Home)
        showEnd(false);
    else if (event->key() == Qt::Key_End)
        showEnd(true);
    else if (!turnPageBy(*event))
        scrollBy(event);
}

/** Scrolls to the end of the last page, or to the top of the first one. */
void PageView::showEnd(bool isLast)
{
    rememberPlace();
    setCurrentPage(isLast ? m_document.pageCount() - 1 : 0);
    // A short last page stays the current one where the one before it fills the view.
    const QScopedValueRollback<bool> guard(m_scrollsItself, true);
    QScrollBar *bar = verticalScrollBar();
    bar->setValue(isLast ? bar->maximum() : bar->minimum());
}

bool PageView::turnPageBy(const QKeyEvent &event)
{
    const int direction = directionOf(event);
    const bool isSideways = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    const QScrollBar *bar = isSideways ? horizontalScrollBar() : verticalScrollBar();
    const int end = direction > 0 ? bar->maximum() : bar->minimum();
    return direction != 0 && bar->value() == end && turnPage(direction);
}

void PageView::scrollBy(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    verticalScrollBar()->triggerAction(directionOf(*event) > 0
                                           ? QAbstractSlider::SliderPageStepAdd
                                           : QAbstractSlider::SliderPageStepSub);
}
