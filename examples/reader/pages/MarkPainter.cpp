// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/MarkPainter.h"

#include "pages/ShapePath.h"
#include "pages/StampPainter.h"

#include <QCoreApplication>
#include <QMap>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int pointsPerLine = 4;
constexpr int signPixels = 13;

void paintSign(QPainter &painter, const Mark &mark, const QRectF &rect)
{
    QFont font;
    font.setPixelSize(signPixels);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(mark.colour);
    painter.drawText(QRectF(rect.right() - 40, rect.top() - 14, 60, 16), Qt::AlignCenter,
                     mark.text);
    painter.setPen(QPen(mark.colour, mark.width));
}

void paintTextLine(QPainter &painter, const Mark &mark, const QRectF &rect)
{
    const qreal bottom = rect.bottom() + 1;
    switch (mark.kind) {
    case MarkKind::Highlight: {
        QColor colour = mark.colour;
        colour.setAlpha(110);
        painter.fillRect(rect, colour);
        break;
    }
    case MarkKind::Underline:
    case MarkKind::Revision:
        painter.drawLine(QPointF(rect.left(), bottom), QPointF(rect.right(), bottom));
        break;
    case MarkKind::WavyLine:
        painter.drawPath(wavePath(rect.left(), rect.right(), bottom + 1));
        break;
    case MarkKind::DeleteLine: {
        const qreal middle = rect.center().y();
        painter.drawLine(QPointF(rect.left(), middle), QPointF(rect.right(), middle));
        break;
    }
    default:
        break;
    }
}

void paintTextMark(QPainter &painter, const Mark &mark)
{
    painter.setPen(QPen(mark.colour, mark.width));
    const QList<QRectF> rects = textRectsOf(mark);
    for (const QRectF &rect : rects)
        paintTextLine(painter, mark, rect);
    if (mark.kind == MarkKind::Revision && !rects.isEmpty())
        paintSign(painter, mark, rects.last());
}

bool isTextMark(MarkKind kind)
{
    return kind == MarkKind::Highlight || kind == MarkKind::Underline || kind == MarkKind::WavyLine
           || kind == MarkKind::DeleteLine || kind == MarkKind::Revision;
}

} // namespace

QString markName(MarkKind kind)
{
    static const QMap<MarkKind, const char *> names = {
        {MarkKind::Highlight, QT_TRANSLATE_NOOP("Mark", "高亮")},
        {MarkKind::Underline, QT_TRANSLATE_NOOP("Mark", "下划线")},
        {MarkKind::WavyLine, QT_TRANSLATE_NOOP("Mark", "波浪线")},
        {MarkKind::DeleteLine, QT_TRANSLATE_NOOP("Mark", "删除线")},
        {MarkKind::Revision, QT_TRANSLATE_NOOP("Mark", "修订")},
        {MarkKind::StraightLine, QT_TRANSLATE_NOOP("Mark", "直线")},
        {MarkKind::Arrow, QT_TRANSLATE_NOOP("Mark", "箭头")},
        {MarkKind::Rectangle, QT_TRANSLATE_NOOP("Mark", "矩形")},
        {MarkKind::Ellipse, QT_TRANSLATE_NOOP("Mark", "椭圆")},
        {MarkKind::Polygon, QT_TRANSLATE_NOOP("Mark", "多边形")},
        {MarkKind::Polyline, QT_TRANSLATE_NOOP("Mark", "折线")},
        {MarkKind::Cloud, QT_TRANSLATE_NOOP("Mark", "云线")},
        {MarkKind::Ink, QT_TRANSLATE_NOOP("Mark", "笔迹")},
        {MarkKind::DisplayMask, QT_TRANSLATE_NOOP("Mark", "显示遮罩")},
        {MarkKind::PrintMask, QT_TRANSLATE_NOOP("Mark", "打印遮罩")},
        {MarkKind::TextBox, QT_TRANSLATE_NOOP("Mark", "文本框")},
        {MarkKind::Note, QT_TRANSLATE_NOOP("Mark", "便签")},
        {MarkKind::RoundSeal, QT_TRANSLATE_NOOP("Mark", "电子签章")},
        {MarkKind::EdgeSeal, QT_TRANSLATE_NOOP("Mark", "骑缝章")},
        {MarkKind::SquareSeal, QT_TRANSLATE_NOOP("Mark", "印章")},
        {MarkKind::SealPlace, QT_TRANSLATE_NOOP("Mark", "签章标记")},
        {MarkKind::Stamp, QT_TRANSLATE_NOOP("Mark", "图章")},
        {MarkKind::Picture, QT_TRANSLATE_NOOP("Mark", "贴图")},
        {MarkKind::Watermark, QT_TRANSLATE_NOOP("Mark", "水印")},
        {MarkKind::Annotation, QT_TRANSLATE_NOOP("Mark", "批注")},
    };
    return QCoreApplication::translate("Mark", names.value(kind));
}

QList<QRectF> textRectsOf(const Mark &mark)
{
    QList<QRectF> rects;
    for (int i = 0; i + pointsPerLine <= mark.points.size(); i += pointsPerLine)
        rects.append(QRectF(mark.points.at(i), mark.points.at(i + 2)));
    return rects;
}

void paintMark(QPainter &painter, const Mark &mark)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    if (isTextMark(mark.kind)) {
        paintTextMark(painter, mark);
    } else if (!StampPainter::paint(painter, mark)) {
        painter.setPen(QPen(mark.colour, mark.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(shapePath(mark));
    }
    painter.restore();
}
