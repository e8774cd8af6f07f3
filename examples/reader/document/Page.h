// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/PageLink.h"

#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>

class QPainter;
struct Page;

// The size of page units, which are pixels at 96 dpi.
constexpr qreal unitsPerInch = 96;
constexpr qreal unitsPerMillimetre = unitsPerInch / 25.4;

/** Size of a generated page, in page units: an A4 sheet. */
constexpr QSizeF pageSize(794, 1123);

/** Which page is painted, and how. */
struct PaintRequest
{
    int index = 0;
    bool forPrint = false;                         ///< Without what the file keeps from printers.
    const std::atomic_bool *isAbandoned = nullptr; ///< Painting ends early once this is true.
};

/**
 * Paints the pages of one file and reads their texts, each page by its PageContent::index().
 *
 * Only the thread that made it may use and delete it, because fonts belong to the thread that
 * loads them.
 */
class ContentPainter
{
public:
    ContentPainter() = default;
    virtual ~ContentPainter() = default;
    Q_DISABLE_COPY(ContentPainter)

    /** Paints a page in page units from its top left corner, without paper. */
    virtual void paint(QPainter &painter, const PaintRequest &request) = 0;
    /** Sets the text, lines and boxes of @p page. */
    virtual void readText(int index, Page &page) = 0;
};

using MakeContentPainter = std::function<std::unique_ptr<ContentPainter>()>;

/** The content of a page that was read from a file. */
class PageContent
{
public:
    PageContent() = default;
    virtual ~PageContent() = default;
    Q_DISABLE_COPY(PageContent)

    /** The index of the page in its file. */
    virtual int index() const = 0;
    /** The painter of the thread that opened the file; other threads make their own. */
    virtual ContentPainter &painter() const = 0;
    /**
     * Makes painters of the same file. It can be called in any thread, and after the content is
     * gone: a thread that kept the content could be the one that deletes the painter of another.
     */
    virtual MakeContentPainter painterMaker() const = 0;

    /** The signature, counted from 0, whose seal is at a point in page units; -1 without one. */
    virtual int signatureAt(QPointF) const { return -1; }
    /** The size of the page as far as it is known now; null if it stays what it was. */
    virtual QSizeF size() const { return QSizeF(); }
    /** Why nothing is shown, in one sentence; empty also as long as the page was not read. */
    virtual QString fault() const { return QString(); }
    /** What can be clicked, from the lowest to the topmost. */
    virtual QVector<PageLink> links() const { return {}; }
};

/** One laid-out line; `start` and `length` point into the text of its page. */
struct TextLine
{
    int start = 0;
    int length = 0;
    QRectF rect;
    int pixelSize = 0;
    bool bold = false;

    QFont font() const;
};

/** A part of the text of a page. */
struct TextSpan
{
    int start = 0;
    int length = 0;
};

/**
 * A page as a text with its lines in page units.
 *
 * A generated page is painted from its lines, and a line break in its text ends a paragraph. A page
 * from a file has a content that paints it, and a line break in its text ends a line.
 */
struct Page
{
    QSizeF size = pageSize;
    QString heading;
    QString text;
    QList<TextLine> lines;
    /** The rectangle of each character; empty on a generated page, where the lines suffice. */
    QVector<QRectF> boxes;
    std::shared_ptr<const PageContent> content;
    bool isTextRead = true; ///< False for a page from a file whose text was not read.

    /** This page with the text that its content has. */
    Page withText(ContentPainter &painter) const;

    /** The rectangles of a range of the text, one for each line. */
    QList<QRectF> rectsOf(int start, int length) const;

    /** The position in the text that is nearest to a point; -1 on a page without text. */
    int positionAt(QPointF point) const;
    /** The characters at a position that belong together: a word, or a run of Chinese characters.
     */
    TextSpan wordAt(QPointF point) const;
    TextSpan lineOf(QPointF point) const;

private:
    qreal leftOf(const TextLine &line, int length) const;
    const TextLine *lineAt(QPointF point) const;
    static qreal heightTo(const TextLine &line, QPointF point);
    qreal distanceTo(const TextLine &line, QPointF point) const;
};
