// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageView.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace {

constexpr qreal referenceDpi = 96;
constexpr int arrowStep = 48;

} // namespace

PageView::PageView(const Document &document, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_document(document)
    , m_zoomMode(ZoomMode::fromName(QStringLiteral("vzmode_fitpage")))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    verticalScrollBar()->setSingleStep(arrowStep);
    horizontalScrollBar()->setSingleStep(arrowStep);
    setTool(PageTool::of(QString()));
    connect(&document, &Document::pagesChanged, this, &PageView::documentChanged);
    connect(&document, &Document::sizesChanged, this, &PageView::layOutInPlace);
    connect(&document, &Document::turned, this, &PageView::documentTurned);
    connect(&m_cache, &PageCache::changed, viewport(), QOverload<>::of(&QWidget::update));
    connect(&document, &Document::contentChanged, this, [this] {
        m_cache.clear();
        viewport()->update();
    });
    connect(&document, &Document::marksChanged, this, [this] { pointOut(-1, QRectF()); });
}

void PageView::setCurrentPage(int page)
{
    if (!m_document.isOpen())
        return;
    page = std::clamp(page, 0, m_document.pageCount() - 1);
    const bool isNew = page != m_currentPage;
    m_currentPage = page;
    // In a flow every page has its place already; there may be thousands.
    if (!isFlow(m_layoutMode))
        layOut();
    showTopOf(page);
    if (isNew)
        Q_EMIT currentPageChanged(page);
}

void PageView::setLayoutMode(LayoutMode mode)
{
    if (mode == m_layoutMode)
        return;
    m_layoutMode = mode;
    layOut();
    showTopOf(m_currentPage);
    Q_EMIT zoomChanged();
}

void PageView::setZoomMode(const ZoomMode &mode)
{
    if (!mode.isValid() || mode.name() == m_zoomMode.name())
        return;
    const QPoint middle = viewport()->rect().center();
    const PagePoint anchor = pagePointAt(middle);
    m_zoomMode = mode;
    layOutAround(anchor, middle);
    Q_EMIT zoomChanged();
}

qreal PageView::percent() const
{
    if (m_zoomMode.kind() == ZoomMode::Percent)
        return m_zoomMode.percent();
    const QSizeF area = fittingArea();
    const QSizeF pages = fittedSize();
    const int perRow = pagesPerRow(m_layoutMode);
    const qreal byWidth = (area.width() - (perRow + 1) * PageLayout::gap) / pages.width();
    const qreal byHeight = (area.height() - 2 * PageLayout::gap) / pages.height();
    qreal fitting = std::min(byWidth, byHeight);
    if (m_zoomMode.kind() == ZoomMode::FitWidth)
        fitting = byWidth;
    else if (m_zoomMode.kind() == ZoomMode::FitHeight)
        fitting = byHeight;
    return std::max(1.0, fitting * 100 / screenFactor());
}

void PageView::documentTurned()
{
    layOut();
    showTopOf(m_currentPage);
    Q_EMIT zoomChanged();
}

void PageView::setBackground(BackgroundStyle style)
{
    m_background = style;
    viewport()->update();
}

void PageView::setTool(const PageTool &tool)
{
    m_tool = tool;
    m_drag = Drag();
    showToolCursor();
}

void PageView::setHits(const QList<TextRange> &hits, const TextRange &current)
{
    m_decoration.hits = hits;
    m_decoration.currentHit = current;
    viewport()->update();
    if (current.isEmpty() || current.page >= m_document.pageCount())
        return;

    if (m_layout.rectOf(current.page).isNull())
        setCurrentPage(current.page);
    const QList<QRectF> rects =
        m_document.page(current.page).rectsOf(current.start, current.length);
    if (rects.isEmpty())
        return;
    const PagePoint hit = {current.page, rects.first().center()};
    const QTransform toView = pageTransform({hit.page, m_layout.rectOf(hit.page)});
    const QRectF onView = toView.mapRect(rects.first());
    if (!QRectF(viewport()->rect()).contains(onView))
        scrollTo(onView.center() + scrollOffset());
    if (m_currentPage != current.page) {
        m_currentPage = current.page;
        Q_EMIT currentPageChanged(m_currentPage);
    }
}

void PageView::setSelection(const QList<TextRange> &selection)
{
    const bool had = !m_decoration.selection.isEmpty();
    m_decoration.selection = selection;
    viewport()->update();
    if (had != !selection.isEmpty())
        Q_EMIT selectionChanged();
}

void PageView::setRevisionsVisible(bool visible)
{
    m_decoration.revisionsVisible = visible;
    viewport()->update();
}

qreal PageView::screenFactor() const
{
    return logicalDpiX() / referenceDpi;
}

QSizeF PageView::turned(QSizeF size) const
{
    return m_document.quarters() % 2 ? size.transposed() : size;
}

PageLayout PageView::layoutAround(int page, QSizeF view) const
{
    const auto sizeOf = [this, factor = scale()](int index) {
        return turned(m_document.sizeOf(index)) * factor;
    };
    return PageLayout::of(m_layoutMode, m_document.pageCount(), sizeOf, page, view);
}

/** The size that a fitting mode fits into the view: a row of pages without gaps, in page units. */
QSizeF PageView::fittedSize() const
{
    const int perRow = pagesPerRow(m_layoutMode);
    if (!m_document.isOpen())
        return QSizeF(pageSize.width() * perRow, pageSize.height());
    if (isFlow(m_layoutMode)) {
        // The same zoom for all rows, so that it does not change on scrolling.
        const QSizeF largest = turned(m_document.largestSize());
        return QSizeF(largest.width() * perRow, largest.height());
    }
    const int first = m_currentPage - m_currentPage % perRow;
    QSizeF size(0, 0);
    for (int i = 0; i < perRow; ++i) {
        const int page = std::min(first + i, m_document.pageCount() - 1);
        const QSizeF next = turned(m_document.sizeOf(page));
        size = QSizeF(size.width() + next.width(), std::max(size.height(), next.height()));
    }
    return size;
}

QSizeF PageView::fittingArea() const
{
    // The width of the scroll bars is always left free. Otherwise a page that fits only without a
    // scroll bar would show and hide it endlessly.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return QSizeF(maximumViewportSize()) - QSizeF(bar, 0);
}

QTransform PageView::pageTransform(const PageLayout::Place &place) const
{
    const QPointF centre = place.rect.center() - scrollOffset();
    QTransform transform;
    transform.translate(centre.x(), centre.y());
    transform.rotate(90.0 * m_document.quarters());
    transform.scale(scale(), scale());
    const QSizeF size = m_document.sizeOf(place.page);
    transform.translate(-size.width() / 2, -size.height() / 2);
    return transform;
}

PageView::PagePoint PageView::pagePointAt(QPoint position) const
{
    const QPointF onDesk = QPointF(position) + scrollOffset();
    const PageLayout::Place *nearest = nullptr;
    qreal smallest = 0;
    const QVector<PageLayout::Place> places = m_layout.placesAround(onDesk.y(), onDesk.y());
    for (const PageLayout::Place &place : places) {
        const QPointF away = place.rect.center() - onDesk;
        const qreal dx = std::max(0.0, std::abs(away.x()) - place.rect.width() / 2);
        const qreal dy = std::max(0.0, std::abs(away.y()) - place.rect.height() / 2);
        if (!nearest || dx + dy < smallest) {
            nearest = &place;
            smallest = dx + dy;
        }
    }
    if (!nearest)
        return PagePoint();
    return {nearest->page, pageTransform(*nearest).inverted().map(QPointF(position))};
}

QPoint PageView::scrollOffset() const
{
    return QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

void PageView::layOut()
{
    const QScopedValueRollback<bool> guard(m_scrollsItself, true);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    // A fitted page may exceed the view by a rounding error.
    constexpr qreal hair = 0.5;
    QSizeF view = maximumViewportSize();
    m_layout = layoutAround(m_currentPage, view);
    if (m_layout.desk.height() > view.height() + hair)
        view.rwidth() -= bar;
    if (m_layout.desk.width() > view.width() + hair)
        view.rheight() -= bar;
    m_layout = layoutAround(m_currentPage, view);
    horizontalScrollBar()->setPageStep(int(view.width()));
    verticalScrollBar()->setPageStep(int(view.height()));
    horizontalScrollBar()->setRange(0, int(m_layout.desk.width() - view.width()));
    verticalScrollBar()->setRange(0, int(m_layout.desk.height() - view.height()));
    viewport()->update();
}

void PageView::layOutAround(const PagePoint &anchor, QPointF target)
{
    layOut();
    const QRectF place = m_layout.rectOf(anchor.page);
    if (place.isNull())
        return;
    const QPointF now = pageTransform({anchor.page, place}).map(anchor.point);
    const QScopedValueRollback<bool> guard(m_scrollsItself, true);
    const QPoint offset = scrollOffset() + (now - target).toPoint();
    horizontalScrollBar()->setValue(offset.x());
    verticalScrollBar()->setValue(offset.y());
}

void PageView::scrollTo(QPointF deskPoint)
{
    const QScopedValueRollback<bool> guard(m_scrollsItself, true);
    horizontalScrollBar()->setValue(int(deskPoint.x()) - viewport()->width() / 2);
    verticalScrollBar()->setValue(int(deskPoint.y()) - viewport()->height() / 2);
}

void PageView::showTopOf(int page)
{
    const QRectF place = m_layout.rectOf(page);
    if (place.isNull())
        return;
    const QScopedValueRollback<bool> guard(m_scrollsItself, true);
    horizontalScrollBar()->setValue(int(place.center().x()) - viewport()->width() / 2);
    verticalScrollBar()->setValue(topOf(page));
}

/** Where the vertical scroll bar shows the top of a page. */
int PageView::topOf(int page) const
{
    return std::clamp(int(m_layout.rectOf(page).top() - PageLayout::gap),
                      verticalScrollBar()->minimum(), verticalScrollBar()->maximum());
}

void PageView::documentChanged()
{
    m_decoration.hits.clear();
    m_decoration.currentHit = TextRange();
    m_drag = Drag();
    m_cache.clear();
    chooseNothing();
    m_anchor = PagePoint();
    m_earlier.clear();
    m_later.clear();
    m_currentPage = std::clamp(m_currentPage, 0, std::max(0, m_document.pageCount() - 1));
    layOut();
    Q_EMIT currentPageChanged(m_currentPage);
}

void PageView::resizeEvent(QResizeEvent *)
{
    layOutInPlace();
}

void PageView::layOutInPlace()
{
    const auto firstWidth = [this] {
        return m_layout.places.isEmpty() ? 0 : m_layout.places.first().rect.width();
    };
    const qreal before = firstWidth();
    // What is read first stays where it is, and the top of a page without any rounding.
    const QPoint top(viewport()->rect().center().x(), int(PageLayout::gap));
    const PagePoint anchor = pagePointAt(top);
    const bool isAtTop = verticalScrollBar()->value() == topOf(m_currentPage);
    layOutAround(anchor, top);
    if (isAtTop) {
        const QScopedValueRollback<bool> guard(m_scrollsItself, true);
        verticalScrollBar()->setValue(topOf(m_currentPage));
    }
    if (m_zoomMode.kind() != ZoomMode::Percent && !qFuzzyCompare(before, firstWidth()))
        Q_EMIT zoomChanged();
}

void PageView::scrollContentsBy(int, int)
{
    viewport()->update();
    if (m_scrollsItself || !isFlow(m_layoutMode))
        return;
    const QRectF visible(scrollOffset(), viewport()->size());
    const int page = m_layout.mainPageOf(visible);
    if (page >= 0 && page != m_currentPage) {
        m_currentPage = page;
        Q_EMIT currentPageChanged(page);
    }
}
