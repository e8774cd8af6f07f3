// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Pattern.h"

#include "ofd/AreaPicture.h"
#include "ofd/Limits.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

constexpr int longestSide = 16384;
constexpr qreal mostCells = 4;

/** The size of a cell in whole pixels. Too large ones become smaller. */
QSize pixelsOf(const QSizeF &wanted, const QSize &period)
{
    const qreal all = wanted.width() * wanted.height() * period.width() * period.height();
    const qreal scale = std::min(1.0, std::sqrt(Limits::shadingPixels / std::max(1.0, all)));
    const auto side = [&](qreal length) {
        return int(std::ceil(std::clamp(length * scale, 1.0, qreal(longestSide))));
    };
    return QSize(side(wanted.width()), side(wanted.height()));
}

} // namespace

PatternPainter::PatternPainter(const Pattern &pattern, const QTransform &toObject,
                               PaintCell paintCell)
    : m_pattern(pattern)
    , m_toObject(pattern.matrix * toObject)
    , m_paintCell(std::move(paintCell))
    , m_period(pattern.mirrorsColumns ? 2 : 1, pattern.mirrorsRows ? 2 : 1)
{
}

Ink PatternPainter::tiles(const QPainter &painter, const QRectF &bounds) const
{
    const QTransform toDevice = m_toObject * painter.deviceTransform();
    if (visiblePixels(painter, bounds).isEmpty() || !toDevice.isInvertible())
        return {};
    const QSizeF &step = m_pattern.step;
    const QSizeF onDevice(step.width() * std::hypot(toDevice.m11(), toDevice.m12()),
                          step.height() * std::hypot(toDevice.m21(), toDevice.m22()));
    const QImage cell = cellImage(pixelsOf(onDevice * pictureDensity(painter), m_period), painter);
    QImage tile = m_period == QSize(1, 1) ? cell : mirrored(cell);
    fade(tile);
    QBrush brush(tile);
    brush.setTransform(
        QTransform::fromScale(step.width() / cell.width(), step.height() / cell.height())
        * m_toObject);
    return {brush, {}};
}

std::optional<Ink> PatternPainter::fewCells(const QPainter &painter, const QRectF &bounds) const
{
    const QRect area = visiblePixels(painter, bounds);
    const QTransform toDevice = m_toObject * painter.deviceTransform();
    if (area.isEmpty() || !toDevice.isInvertible())
        return std::nullopt;
    const QRectF shown = toDevice.inverted().mapRect(QRectF(area));
    const QSizeF &step = m_pattern.step;
    const qreal columns = std::ceil(shown.width() / step.width()) + 1;
    const qreal rows = std::ceil(shown.height() / step.height()) + 1;
    const QPointF first(std::floor(shown.left() / step.width()),
                        std::floor(shown.top() / step.height()));
    if (columns * rows > mostCells || first.manhattanLength() > Limits::number)
        return std::nullopt;
    AreaPicture picture(painter, area);
    QPainter inner(&picture.image);
    inner.setRenderHints(painter.renderHints());
    const QTransform toPixels = m_toObject * picture.toImage;
    for (int i = 0; i < columns * rows; ++i) {
        inner.save();
        inner.setTransform(
            placeOf(int(first.x()) + i % int(columns), int(first.y()) + i / int(columns))
            * toPixels);
        inner.setClipRect(QRectF(QPointF(), m_pattern.size));
        m_paintCell(inner);
        inner.restore();
    }
    inner.end();
    fade(picture.image);
    return Ink{picture.brush(), {}};
}

/** From the coordinates of a cell to those of all cells. */
QTransform PatternPainter::placeOf(int column, int row) const
{
    QTransform place =
        QTransform::fromTranslate(column * m_pattern.step.width(), row * m_pattern.step.height());
    if (m_pattern.mirrorsColumns && column % 2 != 0)
        place.translate(m_pattern.size.width(), 0).scale(-1, 1);
    if (m_pattern.mirrorsRows && row % 2 != 0)
        place.translate(0, m_pattern.size.height()).scale(1, -1);
    return place;
}

QImage PatternPainter::cellImage(const QSize &pixels, const QPainter &painter) const
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter inner(&image);
    inner.setRenderHints(painter.renderHints());
    inner.scale(pixels.width() / m_pattern.step.width(), pixels.height() / m_pattern.step.height());
    inner.setClipRect(QRectF(QPointF(), m_pattern.size));
    m_paintCell(inner);
    return image;
}

/** The cell and its mirrored neighbours. */
QImage PatternPainter::mirrored(const QImage &cell) const
{
    QImage image(cell.width() * m_period.width(), cell.height() * m_period.height(), cell.format());
    image.fill(Qt::transparent);
    QPainter inner(&image);
    inner.setRenderHint(QPainter::SmoothPixmapTransform);
    const QTransform toPixels = QTransform::fromScale(cell.width() / m_pattern.step.width(),
                                                      cell.height() / m_pattern.step.height());
    for (int column = 0; column < m_period.width(); ++column) {
        for (int row = 0; row < m_period.height(); ++row) {
            inner.setTransform(toPixels.inverted() * placeOf(column, row) * toPixels);
            inner.drawImage(0, 0, cell);
        }
    }
    inner.end();
    return image;
}

void PatternPainter::fade(QImage &image) const
{
    if (m_pattern.alpha >= 1)
        return;
    QPainter inner(&image);
    inner.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    QColor colour = Qt::black;
    colour.setAlphaF(float(m_pattern.alpha));
    inner.fillRect(image.rect(), colour);
}

} // namespace Ofd
