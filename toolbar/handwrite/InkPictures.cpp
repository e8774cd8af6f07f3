// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/handwrite/InkPictures.h"

#include <QPainter>
#include <QPainterPath>

namespace {

QPixmap plainSwatch(const QColor &colour, qreal devicePixelRatio)
{
    QPixmap pixmap = InkPictures::transparentPixmap(InkPictures::swatchIconSize, devicePixelRatio);
    pixmap.fill(colour);
    return pixmap;
}

/** The swatch with a tick, in black or white, whichever stands out from @p colour. */
QPixmap tickedSwatch(const QColor &colour, qreal devicePixelRatio)
{
    constexpr int lightFromGrey = 140;
    QPixmap pixmap = plainSwatch(colour, devicePixelRatio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor tick = qGray(colour.rgb()) < lightFromGrey ? Qt::white : Qt::black;
    painter.setPen(QPen(tick, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{10.5, 18}, {15.5, 23}, {25, 12}}));
    return pixmap;
}

/** A ring in black and white, so that the keyboard's place can be seen on every colour. */
QPixmap withFocusRing(QPixmap swatch)
{
    QPainter painter(&swatch);
    const QRectF edge(QPointF(0, 0), QSizeF(InkPictures::swatchIconSize));
    painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(edge.adjusted(1, 1, -1, -1));
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(edge.adjusted(3, 3, -3, -3));
    return swatch;
}

} // namespace

QPixmap InkPictures::transparentPixmap(const QSize &size, qreal devicePixelRatio)
{
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

QIcon InkPictures::swatchIcon(const QColor &colour, qreal devicePixelRatio)
{
    QPixmap plain(swatchIconSize);
    plain.fill(colour);
    QIcon icon(plain);
    const QPixmap ticked = tickedSwatch(colour, devicePixelRatio);
    icon.addPixmap(ticked, QIcon::Normal, QIcon::On);
    // A button with the focus draws the active picture.
    icon.addPixmap(withFocusRing(plainSwatch(colour, devicePixelRatio)), QIcon::Active, QIcon::Off);
    icon.addPixmap(withFocusRing(ticked), QIcon::Active, QIcon::On);
    return icon;
}

void InkPictures::paintChequeredGround(QPainter &painter, const QRect &area, const QColor &ink)
{
    constexpr int square = 6;
    constexpr int paleFromGrey = 215;
    const bool isPale = qGray(ink.rgb()) >= paleFromGrey;
    const QColor light = isPale ? QColor(0x8c, 0x8c, 0x8c) : QColor(0xff, 0xff, 0xff);
    const QColor dark = isPale ? QColor(0x70, 0x70, 0x70) : QColor(0xdc, 0xdc, 0xdc);
    painter.fillRect(area, light);
    for (int row = 0; row * square < area.height(); ++row) {
        for (int column = row % 2; column * square < area.width(); column += 2) {
            const QRect tile(column * square, row * square, square, square);
            painter.fillRect(tile.translated(area.topLeft()).intersected(area), dark);
        }
    }
}

QIcon InkPictures::opacityIcon(QColor ink, qreal opacity, qreal devicePixelRatio)
{
    const QColor edge(0x80, 0x80, 0x80, 0x80);
    QPixmap pixmap = transparentPixmap(opacityIconSize, devicePixelRatio);
    QPainter painter(&pixmap);
    const QRect area(QPoint(0, 0), opacityIconSize);
    paintChequeredGround(painter, area, ink);
    ink.setAlphaF(opacity);
    painter.fillRect(area, ink);
    painter.setPen(edge);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    return QIcon(pixmap);
}

QPainterPath InkPictures::sampleStroke(const QSizeF &size)
{
    const qreal margin = size.height() / 2;
    const qreal width = size.width() - 2 * margin;
    QPainterPath path(QPointF(margin, size.height() * 0.62));
    path.cubicTo(margin + width * 0.30, -size.height() * 0.35, margin + width * 0.45,
                 size.height() * 1.45, margin + width * 0.68, size.height() * 0.45);
    path.cubicTo(margin + width * 0.78, size.height() * 0.05, margin + width * 0.90,
                 size.height() * 0.25, margin + width, size.height() * 0.5);
    return path;
}
