// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// The way back in PageView, after a link or another jump.

#include "pages/PageView.h"

namespace {

constexpr int mostPlaces = 200;

} // namespace

void PageView::rememberPlace()
{
    if (!m_document.isOpen())
        return;
    m_later.clear();
    m_earlier.append(shownPlace());
    if (m_earlier.size() > mostPlaces)
        m_earlier.removeFirst();
}

void PageView::goBack()
{
    exchangePlace(m_earlier, m_later);
}

void PageView::goForward()
{
    exchangePlace(m_later, m_earlier);
}

void PageView::exchangePlace(QVector<PagePlace> &from, QVector<PagePlace> &to)
{
    if (from.isEmpty())
        return;
    to.append(shownPlace());
    showPlace(from.takeLast());
}

PagePlace PageView::shownPlace() const
{
    PagePlace place;
    place.page = m_currentPage;
    const QRectF rect = m_layout.rectOf(m_currentPage);
    // Of turned pages the top is at another side.
    if (m_document.quarters() != 0 || rect.isNull())
        return place;
    const QPointF corner(PageLayout::gap, PageLayout::gap);
    place.top = pageTransform({m_currentPage, rect}).inverted().map(corner).y();
    return place;
}
