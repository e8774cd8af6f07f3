#pragma once

#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>

/** Size of every page, in page units: pixels of an A4 sheet at 96 dpi. */
constexpr QSizeF pageSize(794, 1123);

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

/** A page as a text with its lines in page units. A line break ends a paragraph, not a line. */
struct Page
{
    QString heading;
    QString text;
    QList<TextLine> lines;

    /** Where a range of the text stands, one rectangle a line. */
    QList<QRectF> rectsOf(int start, int length) const;

    /** The position in the text that is nearest to a point; -1 on a page without text. */
    int positionAt(QPointF point) const;
};
