// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageCache.h"

#include <QPainter>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

constexpr int tileSide = 512; // Device pixels.
constexpr int mostKilobytes = 128 << 10;
constexpr int levels = 256;

/** From page units to device pixels, with the corner of the rotated page at the origin. */
QTransform toDevice(const PageCache::Sheet &sheet, qreal ratio)
{
    const qreal scale = sheet.scale * ratio;
    const QSizeF turned = sheet.quarters % 2 ? sheet.size.transposed() : sheet.size;
    QTransform transform;
    transform.translate(turned.width() * scale / 2, turned.height() * scale / 2);
    transform.rotate(90.0 * sheet.quarters);
    transform.scale(scale, scale);
    transform.translate(-sheet.size.width() / 2, -sheet.size.height() / 2);
    return transform;
}

using Ramp = QVector<uchar>;

Ramp rampBetween(int dark, int light)
{
    Ramp ramp(levels);
    for (int i = 0; i < levels; ++i)
        ramp[i] = uchar(dark + (light - dark) * i / (levels - 1));
    return ramp;
}

/**
 * Replaces white by the colour of the paper and black by that of the ink. For dark paper the
 * lightness is inverted first; hues are kept.
 */
void recolour(QImage &image, const PageColours &colours)
{
    const bool isDark = colours.ink.lightness() > colours.paper.lightness();
    const QColor low = isDark ? colours.paper : colours.ink;
    const QColor high = isDark ? colours.ink : colours.paper;
    const Ramp red = rampBetween(low.red(), high.red());
    const Ramp green = rampBetween(low.green(), high.green());
    const Ramp blue = rampBetween(low.blue(), high.blue());
    for (int y = 0; y < image.height(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int r = qRed(line[x]);
            const int g = qGreen(line[x]);
            const int b = qBlue(line[x]);
            const int turn = isDark ? levels - 1 - std::max({r, g, b}) - std::min({r, g, b}) : 0;
            line[x] = qRgb(red.at(r + turn), green.at(g + turn), blue.at(b + turn));
        }
    }
}

} // namespace

PageCache::PageCache()
    : m_tiles(mostKilobytes)
{
}

void PageCache::paint(QPainter &painter, const Sheet &sheet, const QRectF &place,
                      const PageColours &colours)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    // Rounded to device pixels, because letters at fractions of a pixel are blurred.
    const QPoint corner = (place.topLeft() * ratio).toPoint();
    const QSize size(int(std::ceil(place.width() * ratio)), int(std::ceil(place.height() * ratio)));
    const QRectF window(0, 0, painter.device()->width(), painter.device()->height());
    const QRectF clip = painter.clipBoundingRect().intersected(window);
    const QRect visible = QRectF(clip.topLeft() * ratio, clip.size() * ratio)
                              .toAlignedRect()
                              .translated(-corner)
                              .intersected(QRect(QPoint(0, 0), size));
    if (visible.isEmpty())
        return;
    for (int y = visible.top() / tileSide; y <= visible.bottom() / tileSide; ++y) {
        for (int x = visible.left() / tileSide; x <= visible.right() / tileSide; ++x) {
            const QPoint at(x * tileSide, y * tileSide);
            painter.drawImage(QPointF(corner + at) / ratio, tile(sheet, at, ratio, colours));
        }
    }
}

QImage PageCache::tile(const Sheet &sheet, QPoint corner, qreal ratio, const PageColours &colours)
{
    const QString key = QStringLiteral("%1/%2/%3/%4/%5/%6")
                            .arg(quintptr(sheet.content))
                            .arg(sheet.scale * ratio, 0, 'g', 12)
                            .arg(sheet.quarters)
                            .arg(colours.paper.rgba())
                            .arg(corner.x())
                            .arg(corner.y());
    if (const QImage *known = m_tiles.object(key))
        return *known;
    QImage image(tileSide, tileSide, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setTransform(toDevice(sheet, ratio)
                         * QTransform::fromTranslate(-corner.x(), -corner.y()));
    sheet.content->paint(painter);
    painter.end();
    if (colours.paper != QColor(Qt::white))
        recolour(image, colours);
    image.setDevicePixelRatio(ratio);
    m_tiles.insert(key, new QImage(image), int(image.sizeInBytes() >> 10));
    return image;
}
