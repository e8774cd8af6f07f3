// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageCache.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// In device pixels.
constexpr int tileSide = 512;
constexpr int previewSide = 512;

constexpr int mostKilobytes = 128 << 10;
/** Of tiles painted in another scale; beyond, there would be too many for one new tile. */
constexpr qreal mostShrinking = 4;

QSizeF turnedSize(const PageCache::Sheet &sheet)
{
    return sheet.quarters % 2 ? sheet.size.transposed() : sheet.size;
}

/** From page units to device pixels, with the corner of the rotated page at the origin. */
QTransform toDevice(const PageCache::Sheet &sheet, qreal scale)
{
    const QSizeF turned = turnedSize(sheet);
    QTransform transform;
    transform.translate(turned.width() * scale / 2, turned.height() * scale / 2);
    transform.rotate(90.0 * sheet.quarters);
    transform.scale(scale, scale);
    transform.translate(-sheet.size.width() / 2, -sheet.size.height() / 2);
    return transform;
}

/** @param scale in device pixels for a page unit. */
Tile tileAt(const PageCache::Sheet &sheet, qreal scale, QPoint corner, QSize size)
{
    Tile tile;
    tile.key = QStringLiteral("%1/%2/%3/%4/%5/%6/%7")
                   .arg(sheet.content->index())
                   .arg(scale, 0, 'g', 12)
                   .arg(sheet.ratio)
                   .arg(sheet.quarters)
                   .arg(sheet.colours.paper.rgba())
                   .arg(corner.x())
                   .arg(corner.y());
    tile.index = sheet.content->index();
    tile.corner = corner;
    tile.size = size;
    tile.toPixels = toDevice(sheet, scale) * QTransform::fromTranslate(-corner.x(), -corner.y());
    tile.ratio = sheet.ratio;
    tile.colours = sheet.colours;
    return tile;
}

/** The tiles that touch a part of the page, in the order of reading. */
QVector<Tile> tilesOf(const PageCache::Sheet &sheet, qreal scale, const QRect &part)
{
    QVector<Tile> tiles;
    if (part.isEmpty())
        return tiles;
    for (int y = part.top() / tileSide; y <= part.bottom() / tileSide; ++y) {
        for (int x = part.left() / tileSide; x <= part.right() / tileSide; ++x)
            tiles.append(tileAt(sheet, scale, QPoint(x, y) * tileSide, QSize(tileSide, tileSide)));
    }
    return tiles;
}

qreal previewScaleOf(const PageCache::Sheet &sheet)
{
    return previewSide / std::max(sheet.size.width(), sheet.size.height());
}

Tile previewOf(const PageCache::Sheet &sheet)
{
    const qreal scale = previewScaleOf(sheet);
    const QSizeF size = turnedSize(sheet) * scale;
    return tileAt(sheet, scale, QPoint(),
                  QSize(int(std::ceil(size.width())), int(std::ceil(size.height()))));
}

/** Rounded to device pixels, because letters at fractions of a pixel are blurred. */
QPoint cornerOf(const QRectF &place, qreal ratio)
{
    return (place.topLeft() * ratio).toPoint();
}

/** The part of a page that is in the window, in device pixels from the corner of the page. */
QRect partOf(const QRectF &place, const QRectF &window, qreal ratio)
{
    const QSize size(int(std::ceil(place.width() * ratio)), int(std::ceil(place.height() * ratio)));
    return QRectF(window.topLeft() * ratio, window.size() * ratio)
        .toAlignedRect()
        .translated(-cornerOf(place, ratio))
        .intersected(QRect(QPoint(0, 0), size));
}

int kilobytesOf(const QImage &image)
{
    return int(image.sizeInBytes() >> 10);
}

} // namespace

PageCache::PageCache(QObject *parent)
    : QObject(parent)
    , m_tiles(mostKilobytes)
{
}

void PageCache::draw(QPainter &painter, const Sheet &sheet, const QRectF &place)
{
    const qreal scale = sheet.scale * sheet.ratio;
    noteScale(scale);
    const QRectF window(0, 0, painter.device()->width(), painter.device()->height());
    const QRectF visible = painter.clipBoundingRect().intersected(window);
    const QPoint corner = cornerOf(place, sheet.ratio);
    bool isSharp = true;
    const QVector<Tile> tiles = tilesOf(sheet, scale, partOf(place, visible, sheet.ratio));
    for (const Tile &tile : tiles) {
        if (const QImage *image = m_tiles.object(tile.key)) {
            painter.drawImage(QPointF(corner + tile.corner) / sheet.ratio, *image);
            m_hasDrawnTile = true;
        } else {
            drawStandIn(painter, sheet, corner, tile);
            want(m_shownTiles, sheet, tile);
            isSharp = false;
        }
    }
    if (!isSharp && scale > previewScaleOf(sheet))
        preview(sheet);
}

/** Draws what there is instead of a tile; all of it covers the same part of the page. */
void PageCache::drawStandIn(QPainter &painter, const Sheet &sheet, QPoint corner, const Tile &tile)
{
    const auto drawScaled = [&](const Tile &other, qreal factor) {
        const QImage *image = m_tiles.object(other.key);
        const QPointF topLeft = corner + QPointF(other.corner) * factor;
        if (image)
            painter.drawImage(QRectF(topLeft / sheet.ratio, other.size * factor / sheet.ratio),
                              *image);
    };
    const QRectF part(tile.corner, tile.size);
    painter.save();
    painter.setClipRect(QRectF((corner + part.topLeft()) / sheet.ratio, part.size() / sheet.ratio),
                        Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(painter.clipBoundingRect(), sheet.colours.paper);
    drawScaled(previewOf(sheet), m_scale / previewScaleOf(sheet));
    const qreal shrinking = m_earlierScale / m_scale;
    if (shrinking > 0 && shrinking < mostShrinking) {
        const QRectF earlier(part.topLeft() * shrinking, part.size() * shrinking);
        const QVector<Tile> tiles = tilesOf(sheet, m_earlierScale, earlier.toAlignedRect());
        for (const Tile &other : tiles)
            drawScaled(other, 1 / shrinking);
    }
    painter.restore();
}

void PageCache::prepare(const Sheet &sheet, const QRectF &place, const QRectF &window)
{
    const qreal scale = sheet.scale * sheet.ratio;
    const QVector<Tile> tiles = tilesOf(sheet, scale, partOf(place, window, sheet.ratio));
    for (const Tile &tile : tiles) {
        if (!m_tiles.contains(tile.key))
            want(m_soonShown, sheet, tile);
    }
}

QImage PageCache::preview(const Sheet &sheet)
{
    const Tile tile = previewOf(sheet);
    if (const QImage *image = m_tiles.object(tile.key))
        return *image;
    want(m_shownPreviews, sheet, tile);
    return QImage();
}

void PageCache::request()
{
    m_isSharp = m_shownTiles.isEmpty();
    if (m_painter)
        m_painter->setWanted(m_shownPreviews + m_shownTiles + m_soonShown);
    m_shownPreviews.clear();
    m_shownTiles.clear();
    m_soonShown.clear();
}

void PageCache::clear()
{
    m_tiles.clear();
    m_isSharp = false;
    m_hasDrawnTile = false;
    m_earlierScale = 0;
    if (!m_painter)
        return;
    // Not waited for: an object of a page may take a while.
    disconnect(m_painter, nullptr, this, nullptr);
    connect(m_painter, &QThread::finished, m_painter, &QObject::deleteLater);
    m_painter->stop();
    if (!m_painter->isRunning())
        m_painter->deleteLater();
    m_painter = nullptr;
}

/** Keeps the scale of the last tiles that were seen, which are the best picture after a zoom. */
void PageCache::noteScale(qreal scale)
{
    if (scale == m_scale)
        return;
    if (m_hasDrawnTile)
        m_earlierScale = m_scale;
    m_scale = scale;
    m_hasDrawnTile = false;
}

void PageCache::want(QVector<Tile> &list, const Sheet &sheet, const Tile &tile)
{
    if (!m_painter) {
        m_painter = new TilePainter(sheet.content->painterMaker(), this);
        connect(m_painter, &TilePainter::painted, this, &PageCache::take);
    }
    list.append(tile);
}

void PageCache::take()
{
    if (!m_painter)
        return; // It told of a tile just before it was left.
    const QVector<TilePainter::Painted> painted = m_painter->takePainted();
    for (const TilePainter::Painted &tile : painted)
        m_tiles.insert(tile.key, new QImage(tile.image), kilobytesOf(tile.image));
    if (!painted.isEmpty())
        Q_EMIT changed();
}
