// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/PageGenerator.h"

#include <QFontMetricsF>
#include <QRandomGenerator>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int leastPages = 12;
constexpr int extraPages = 24;
constexpr qreal sideMargin = 92;
constexpr qreal headingTop = 92;
constexpr qreal bodyTop = 176;
constexpr qreal bodyBottom = 1030;
constexpr int headingPixels = 28;
constexpr int bodyPixels = 17;
constexpr qreal bodyLineHeight = 30;
constexpr qreal paragraphGap = 10;

QStringList headings()
{
    return {
        QStringLiteral("版式文档的由来"), QStringLiteral("页面与坐标"),
        QStringLiteral("文字如何上纸"),   QStringLiteral("目录与书签"),
        QStringLiteral("批注的分寸"),     QStringLiteral("签章与信任"),
        QStringLiteral("搜索一个词"),     QStringLiteral("缩放与阅读距离"),
        QStringLiteral("夜间阅读"),       QStringLiteral("打印之前"),
        QStringLiteral("归档二十年之后"), QStringLiteral("手写的痕迹"),
    };
}

QStringList sentences()
{
    return {
        QStringLiteral("版式文档在任何一块屏幕上都保持同样的页面。"),
        QStringLiteral("读者翻到第几页，看到的就是作者定下的那一页。"),
        QStringLiteral("一个页面由文字、图形和图像组成，它们各有自己的坐标。"),
        QStringLiteral("搜索并不改变文档，它只是把目光带到该去的地方。"),
        QStringLiteral("批注写在页面之上，而不写进原文之中。"),
        QStringLiteral("撤销一步，再恢复一步，页面应当与先前分毫不差。"),
        QStringLiteral("签章说明两件事：谁看过，以及此后没有人改过。"),
        QStringLiteral("字号不变而缩放变大时，一行能容下的字数并不会改变。"),
        QStringLiteral("目录是文档的地图，书签则是读者自己插下的小旗。"),
        QStringLiteral("夜里读得久了，可以把页面的背景换成深色。"),
        QStringLiteral("打印以前先看一遍页边，省下的往往是整包的纸。"),
        QStringLiteral("归档的文档要经得起搬家，也要经得起换软件。"),
        QStringLiteral("手写的笔迹有轻有重，所以一支软笔比一条直线更像人。"),
        QStringLiteral("好的工具栏不必解释自己，按下去便知道它做什么。"),
        QStringLiteral("OFD 文档里的每一个 page 都有编号，许多 pages 合成一册。"),
        QStringLiteral("封面上写着 Page One，而正文里只写 page 2。"),
        QStringLiteral("若要比较两页，把版面换成双页，左右便摆在一起。"),
        QStringLiteral("连续滚动适合通读，单页显示适合细看。"),
    };
}

QString paragraph(QRandomGenerator &random)
{
    const QStringList choices = sentences();
    QString text = QStringLiteral("　　"); // A Chinese paragraph begins with two blanks.
    const int count = 3 + int(random.bounded(4));
    for (int i = 0; i < count; ++i)
        text += choices.at(int(random.bounded(int(choices.size()))));
    return text;
}

void appendLine(Page &page, const QString &text, QRectF rect, int pixels, bool bold)
{
    TextLine line;
    line.start = int(page.text.size());
    line.length = int(text.size());
    line.rect = rect;
    line.pixelSize = pixels;
    line.bold = bold;
    page.text += text;
    page.lines.append(line);
}

bool isLatin(QChar character)
{
    return character.unicode() < 0x80 && character.isLetterOrNumber();
}

/** How many characters starting at @p from fit into a line; a comma or full stop may exceed it. */
int fittingLength(const QString &text, int from, const QFontMetricsF &metrics, qreal width)
{
    int length = 0;
    qreal used = 0;
    while (from + length < text.size()) {
        const QChar next = text.at(from + length);
        used += metrics.horizontalAdvance(next);
        const bool mayHang = next == QChar(u'。') || next == QChar(u'，') || next == QChar(u'：');
        if (used > width && !mayHang)
            break;
        ++length;
    }
    // A word of letters is not broken.
    int whole = length;
    while (whole > 0 && from + whole < text.size() && isLatin(text.at(from + whole))
           && isLatin(text.at(from + whole - 1)))
        --whole;
    return whole > 0 ? whole : length;
}

QStringList linesOf(const QString &text, const QFontMetricsF &metrics, qreal width)
{
    QStringList lines;
    int from = 0;
    while (from < text.size()) {
        const int length = std::max(1, fittingLength(text, from, metrics, width));
        lines.append(text.mid(from, length));
        from += length;
    }
    return lines;
}

/** Adds a paragraph; returns false and adds nothing if it does not fit on the page. */
bool appendParagraph(Page &page, const QString &text, qreal *top)
{
    TextLine sample;
    sample.pixelSize = bodyPixels;
    const QFontMetricsF metrics(sample.font());
    const qreal width = pageSize.width() - 2 * sideMargin;
    const QStringList lines = linesOf(text, metrics, width);
    if (*top + qreal(lines.size()) * bodyLineHeight > bodyBottom)
        return false;
    for (const QString &line : lines) {
        const QRectF rect(sideMargin, *top, width, metrics.height());
        appendLine(page, line, rect, bodyPixels, false);
        *top += bodyLineHeight;
    }
    page.text += QChar(u'\n');
    *top += paragraphGap;
    return true;
}

} // namespace

int PageGenerator::pageCount(quint32 seed)
{
    return leastPages + int(seed % extraPages);
}

Page PageGenerator::page(quint32 seed, int number)
{
    QRandomGenerator random(seed + quint32(number) * 7919U);
    const QStringList choices = headings();
    Page page;
    page.heading = choices.at(int((seed + quint32(number)) % quint32(choices.size())));

    const QRectF rect(sideMargin, headingTop, pageSize.width() - 2 * sideMargin, 42);
    appendLine(page, page.heading, rect, headingPixels, true);
    page.text += QChar(u'\n');

    qreal top = bodyTop;
    while (appendParagraph(page, paragraph(random), &top)) {
    }
    return page;
}
