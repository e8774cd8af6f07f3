// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/PageCache.h"
#include "pages/PageLayout.h"
#include "pages/PagePainter.h"
#include "pages/PageTool.h"
#include "pages/ZoomMode.h"

#include <QAbstractScrollArea>
#include <QElapsedTimer>

/**
 * Shows the pages of a document and handles the mouse on them.
 *
 * It does not change the document. It emits markDrawn() with what the user drew, and the owner of
 * the document adds it.
 */
class PageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PageView(const Document &document, QWidget *parent = nullptr);

    /** The index of the current page. */
    int currentPage() const { return m_currentPage; }
    void setCurrentPage(int page);

    /** Scrolls to a place of the document, with its zoom if it has one. */
    void showPlace(const PagePlace &place);
    /** Keeps the place that is shown for goBack(); called before the user jumps to another one. */
    void rememberPlace();
    bool hasEarlierPlace() const { return !m_earlier.isEmpty(); }
    bool hasLaterPlace() const { return !m_later.isEmpty(); }
    void goBack();
    void goForward();
    /** Whether all of a part of a page can be seen. */
    bool isInView(int page, const QRectF &rect) const;
    /** Frames a part of a page until something else is chosen. */
    void pointOut(int page, const QRectF &rect);
    /** Ends the selection, and the frame of pointOut(). */
    void chooseNothing();

    LayoutMode layoutMode() const { return m_layoutMode; }
    void setLayoutMode(LayoutMode mode);

    ZoomMode zoomMode() const { return m_zoomMode; }
    void setZoomMode(const ZoomMode &mode);
    /** The zoom in percent; for a fitting mode it depends on the size of the view. */
    qreal percent() const;

    BackgroundStyle background() const { return m_background; }
    void setBackground(BackgroundStyle style);

    const PageTool &tool() const { return m_tool; }
    void setTool(const PageTool &tool);

    /** Sets the hits of a search and scrolls to the current one. */
    void setHits(const QList<TextRange> &hits, const TextRange &current);
    /** Sets more hits of the same search and stays where it is. */
    void addHits(const QList<TextRange> &hits);

    const QList<TextRange> &selection() const { return m_decoration.selection; }
    void setSelection(const QList<TextRange> &selection);
    /** The marks of the current tool for the selected text, one for each page. */
    QList<Mark> marksOnSelection() const;

    bool areRevisionsVisible() const { return m_decoration.revisionsVisible; }
    void setRevisionsVisible(bool visible);

    /** Whether the pages were painted in full quality; otherwise they will be soon. */
    bool isSharp() const { return m_cache.isSharp(); }

Q_SIGNALS:
    void currentPageChanged(int page);
    /** The zoom mode or its percentage has changed. */
    void zoomChanged();
    void selectionChanged();
    /** The user wants the selected text on the clipboard. */
    void copyAsked();
    /** The user requested the next zoom step with the wheel. */
    void zoomStepAsked(bool larger);
    /** The user drew a mark. For a text box it has the rectangle and no text yet. */
    void markDrawn(const Mark &mark);
    void inkRubbed(int page, QPointF point, qreal radius);
    /** The user wants to know about the signature, counted from 0, of a seal. */
    void signatureAsked(int signature);
    void linkClicked(const PageLink &link);
    /** The user wants to change the remark of the mark with that identifier. */
    void remarkAsked(int id);
    /** The user wants the menu for the page at a place of the screen. */
    void menuAsked(QPoint place);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    struct PagePoint
    {
        int page = -1;
        QPointF point; ///< In page units.
    };

    /** The state of a mouse drag. */
    struct Drag
    {
        bool isActive = false;
        QPoint firstPosition;
        QPoint lastPosition;
        PagePoint start;
        int textStart = -1;
        bool hasSelected = false;
        Mark mark;
    };

    // Geometry.
    qreal screenFactor() const;
    qreal scale() const { return percent() / 100 * screenFactor(); }
    QSizeF turned(QSizeF size) const;
    QSizeF fittedSize() const;
    PageLayout layoutAround(int page, QSizeF view) const;
    QSizeF fittingArea() const;
    QTransform pageTransform(const PageLayout::Place &place) const;
    PagePoint pagePointAt(QPoint position) const;
    QPoint scrollOffset() const;
    void layOut();
    void layOutAround(const PagePoint &anchor, QPointF target);
    void layOutInPlace();
    void scrollTo(QPointF deskPoint);
    void showTopOf(int page);
    int topOf(int page) const;
    void documentChanged();
    void documentTurned();
    void paintPlace(QPainter &painter, const PageLayout::Place &place);
    void prepareNext(const QRectF &visible);
    PageCache::Sheet sheetOf(int page) const;
    void paintFrame(QPainter &painter) const;
    void paintHint(QPainter &painter);
    PageColours colours() const;

    PagePlace shownPlace() const;
    void exchangePlace(QVector<PagePlace> &from, QVector<PagePlace> &to);

    // Links, which only the tools for reading follow.
    PageLink linkAt(QPoint position) const;
    void showToolCursor();
    void showCursorAt(QPoint position);
    QString tipOf(const PageLink &link) const;
    const Mark *remarkAt(QPoint position) const;
    void clickLink(const Drag &drag);

    // Mouse drags.
    void startDrag(QPoint position, Qt::KeyboardModifiers modifiers);
    void startSelection(Qt::KeyboardModifiers modifiers);
    void selectTextTo(const PagePoint &to);
    void selectAround(QPoint position, bool isLine);
    void finishSelection();
    void extendDrawing(const PagePoint &to);
    void finishDrag();
    bool turnPage(int direction);
    void showEnd(bool isLast);
    bool turnPageBy(const QKeyEvent &event);
    void scrollBy(QKeyEvent *event);

    const Document &m_document;
    PageLayout m_layout;
    LayoutMode m_layoutMode = LayoutMode::SinglePage;
    ZoomMode m_zoomMode;
    int m_currentPage = 0;
    BackgroundStyle m_background = Background_Default;
    PageTool m_tool;
    PageDecoration m_decoration;
    QVector<PagePlace> m_earlier;
    QVector<PagePlace> m_later; ///< After the user has gone back.
    int m_framedPage = -1;
    QRectF m_frame; ///< In page units.
    PageCache m_cache;
    Drag m_drag;
    PagePoint m_anchor;        ///< Where the last selection began.
    QElapsedTimer m_sinceWord; ///< Since a double click has selected a word.
    bool m_scrollsItself = false;
};
