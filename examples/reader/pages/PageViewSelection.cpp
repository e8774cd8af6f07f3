// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// The selection of text in PageView.

#include "pages/PageView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>

#include <algorithm>

void PageView::startSelection(Qt::KeyboardModifiers modifiers)
{
    const bool isLine =
        m_sinceWord.isValid() && m_sinceWord.elapsed() < QApplication::doubleClickInterval();
    m_sinceWord.invalidate();
    const PagePoint to = m_drag.start;
    if (isLine && to.page == m_anchor.page && m_tool.gesture == PageTool::SelectText) {
        const QPoint position = m_drag.firstPosition;
        m_drag = Drag();
        selectAround(position, true);
        return;
    }
    const bool isExtended = modifiers & Qt::ShiftModifier && !selection().isEmpty();
    if (!isExtended || m_anchor.page < 0)
        m_anchor = to;
    m_drag.start = m_anchor;
    m_drag.textStart = m_document.page(m_anchor.page).positionAt(m_anchor.point);
    if (isExtended)
        selectTextTo(to);
    else if (m_tool.gesture == PageTool::MarkText)
        setSelection({});
    // Otherwise the old selection stays until there is a new one, and with it what is shown for it.
}

void PageView::selectTextTo(const PagePoint &to)
{
    if (to.page != m_drag.start.page || m_drag.textStart < 0)
        return;
    const int end = m_document.page(to.page).positionAt(to.point);
    const int start = std::min(m_drag.textStart, end);
    const int length = std::abs(end - m_drag.textStart);
    if (length == 0 && !m_drag.hasSelected)
        return;
    m_drag.hasSelected = true;
    setSelection(length > 0 ? QList<TextRange>{{to.page, start, length}} : QList<TextRange>());
}

void PageView::selectAround(QPoint position, bool isLine)
{
    const PagePoint place = pagePointAt(position);
    const Page page = m_document.page(place.page);
    const TextSpan span = isLine ? page.lineOf(place.point) : page.wordAt(place.point);
    m_anchor = place;
    if (!isLine)
        m_sinceWord.start();
    setSelection(span.length > 0 ? QList<TextRange>{{place.page, span.start, span.length}}
                                 : QList<TextRange>());
    finishSelection();
}

/** For the middle button of the mouse, where the system has that. */
void PageView::finishSelection()
{
    QClipboard *clipboard = QApplication::clipboard();
    if (selection().size() != 1 || !clipboard->supportsSelection())
        return;
    const TextRange range = selection().first();
    clipboard->setText(m_document.page(range.page).text.mid(range.start, range.length),
                       QClipboard::Selection);
}

void PageView::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_document.isOpen() && !m_drag.isActive)
        Q_EMIT menuAsked(event->globalPos());
}
