// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/StampPainter.h"

#include "document/Page.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int watermarkPixels = 84;
constexpr qreal watermarkAngle = -35;
constexpr qreal hatchDistance = 8;

QFont fontOf(int pixels, bool bold)
{
    QFont font;
    font.setPixelSize(std::max(1, pixels));
    font.setBold(bold);
    return font;
}

/** An upright star with five points. */
QPolygonF star(QPointF centre, qreal radius)
{
    QPolygonF points;
    for (int i = 0; i < 10; ++i) {
        const qreal angle = M_PI * i / 5 - M_PI / 2;
        const qreal reach = i % 2 ? radius * 0.4 : radius;
        points << centre + QPointF(reach * qCos(angle), reach * qSin(angle));
    }
    return points;
}

void paintRoundSeal(QPainter &painter, const Mark &mark)
{
    const QRectF rect = mark.rect();
    painter.setPen(QPen(mark.colour, 4));
    painter.drawEllipse(rect.adjusted(2, 2, -2, -2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark.colour);
    painter.drawPolygon(star(rect.center(), rect.width() / 6));

    painter.setPen(mark.colour);
    painter.setFont(fontOf(int(rect.width() / 7), true));
    const qreal step = 200.0 / std::max<qreal>(1, qreal(mark.text.size() - 1));
    for (int i = 0; i < mark.text.size(); ++i) {
        painter.save();
        painter.translate(rect.center());
        painter.rotate(mark.text.size() > 1 ? -100 + step * i : 0);
        painter.drawText(QRectF(-20, -rect.height() / 2 + 8, 40, rect.height() / 6),
                         Qt::AlignCenter, QString(mark.text.at(i)));
        painter.restore();
    }
}

void paintSquareSeal(QPainter &painter, const Mark &mark)
{
    const QRectF rect = mark.rect();
    painter.setPen(QPen(mark.colour, 4));
    painter.drawRoundedRect(rect.adjusted(2, 2, -2, -2), 6, 6);
    painter.setFont(fontOf(int(rect.height() / 2.8), true));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextWrapAnywhere, mark.text);
}

void paintSealPlace(QPainter &painter, const Mark &mark)
{
    painter.setPen(QPen(mark.colour, 2, Qt::DashLine));
    painter.drawEllipse(mark.rect());
    painter.setFont(fontOf(18, false));
    painter.drawText(mark.rect(), Qt::AlignCenter, mark.text);
}

void paintStamp(QPainter &painter, const Mark &mark)
{
    const QRectF rect = mark.rect();
    painter.translate(rect.center());
    painter.rotate(-12);
    const QRectF box(-rect.width() / 2, -rect.height() / 2, rect.width(), rect.height());
    painter.setPen(QPen(mark.colour, 4));
    painter.drawRoundedRect(box, 8, 8);
    painter.setFont(fontOf(int(rect.height() * 0.6), true));
    painter.drawText(box, Qt::AlignCenter, mark.text);
}

void paintPicture(QPainter &painter, const Mark &mark)
{
    const QRectF rect = mark.rect();
    painter.fillRect(rect, QColor(0xCF, 0xE5, 0xF5));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xF2, 0xB1, 0x34));
    painter.drawEllipse(rect.topLeft() + QPointF(rect.width() * 0.78, rect.height() * 0.26), 18,
                        18);
    painter.setBrush(QColor(0x5B, 0x8C, 0x5A));
    painter.drawPolygon(QPolygonF(
        {rect.bottomLeft(), rect.topLeft() + QPointF(rect.width() * 0.35, rect.height() * 0.3),
         rect.bottomLeft() + QPointF(rect.width() * 0.7, 0)}));
    painter.setBrush(QColor(0x3F, 0x6B, 0x45));
    painter.drawPolygon(QPolygonF(
        {rect.bottomLeft() + QPointF(rect.width() * 0.4, 0),
         rect.topLeft() + QPointF(rect.width() * 0.7, rect.height() * 0.5), rect.bottomRight()}));
    painter.setPen(QPen(QColor(0x60, 0x60, 0x60), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect);
}

void paintWatermark(QPainter &painter, const Mark &mark)
{
    QColor colour = mark.colour;
    colour.setAlpha(60);
    painter.setPen(colour);
    painter.setFont(fontOf(watermarkPixels, true));
    painter.translate(mark.rect().center());
    painter.rotate(watermarkAngle);
    painter.drawText(QRectF(-500, -100, 1000, 200), Qt::AlignCenter, mark.text);
}

/** Lines from the lower left to the upper right. A pattern brush would depend on the device. */
QPainterPath hatching(const QRectF &rect)
{
    QPainterPath lines;
    for (qreal way = hatchDistance; way < rect.width() + rect.height(); way += hatchDistance) {
        const qreal down = std::min(way, rect.height());
        const qreal right = std::min(way, rect.width());
        lines.moveTo(rect.left() + way - down, rect.top() + down);
        lines.lineTo(rect.left() + right, rect.top() + way - right);
    }
    return lines;
}

void paintMask(QPainter &painter, const Mark &mark)
{
    const QRectF rect = mark.rect();
    painter.setPen(QPen(QColor(0x50, 0x50, 0x50), 1));
    if (mark.kind == MarkKind::PrintMask)
        painter.drawPath(hatching(rect));
    else
        painter.setBrush(QColor(0x9A, 0x9A, 0x9A));
    painter.drawRect(rect);
}

void paintNote(QPainter &painter, const Mark &mark, QColor ground)
{
    const QRectF rect = mark.rect();
    painter.setPen(QPen(mark.colour, 1));
    painter.setBrush(ground);
    painter.drawRect(rect);
    painter.setPen(QColor(0x22, 0x22, 0x22));
    painter.setFont(fontOf(16, false));
    painter.drawText(rect.adjusted(8, 6, -8, -6), Qt::TextWrapAnywhere, mark.text);
}

} // namespace

bool StampPainter::paint(QPainter &painter, const Mark &mark)
{
    switch (mark.kind) {
    case MarkKind::RoundSeal:
    case MarkKind::EdgeSeal:
        paintRoundSeal(painter, mark);
        return true;
    case MarkKind::SquareSeal:
        paintSquareSeal(painter, mark);
        return true;
    case MarkKind::SealPlace:
        paintSealPlace(painter, mark);
        return true;
    case MarkKind::Stamp:
        paintStamp(painter, mark);
        return true;
    case MarkKind::Picture:
        paintPicture(painter, mark);
        return true;
    case MarkKind::Watermark:
        paintWatermark(painter, mark);
        return true;
    case MarkKind::DisplayMask:
    case MarkKind::PrintMask:
        paintMask(painter, mark);
        return true;
    case MarkKind::TextBox:
        paintNote(painter, mark, Qt::white);
        return true;
    case MarkKind::Note:
        paintNote(painter, mark, QColor(0xFF, 0xF1, 0xA8));
        return true;
    default:
        return false;
    }
}
