// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/TilePainter.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int levels = 256;

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

/** Empty in places if it was abandoned. */
QImage imageOf(const Tile &tile, ContentPainter &pages, const std::atomic_bool &isAbandoned)
{
    QImage image(tile.size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setTransform(tile.toPixels);
    pages.paint(painter, {tile.index, false, &isAbandoned});
    painter.end();
    if (tile.colours.paper != QColor(Qt::white) && !isAbandoned)
        recolour(image, tile.colours);
    image.setDevicePixelRatio(tile.ratio);
    return image;
}

} // namespace

TilePainter::TilePainter(MakeContentPainter makePainter, QObject *parent)
    : QThread(parent)
    , m_makePainter(std::move(makePainter))
{
}

TilePainter::~TilePainter()
{
    stop();
    wait();
}

void TilePainter::setWanted(const QVector<Tile> &tiles)
{
    const QMutexLocker lock(&m_mutex);
    bool wantsCurrent = false;
    m_wanted.clear();
    for (const Tile &tile : tiles) {
        const auto isSame = [&tile](const Painted &done) { return done.key == tile.key; };
        if (tile.key == m_current && !m_isAbandoned)
            wantsCurrent = true;
        else if (std::none_of(m_painted.cbegin(), m_painted.cend(), isSame))
            m_wanted.append(tile);
    }
    // An abandoned picture lacks objects and stays abandoned, even if the tile is wanted again.
    if (!wantsCurrent)
        m_isAbandoned = true;
    if (!m_wanted.isEmpty() && !isRunning() && !m_isStopped)
        start();
    m_hasChanged.wakeOne();
}

QVector<TilePainter::Painted> TilePainter::takePainted()
{
    const QMutexLocker lock(&m_mutex);
    QVector<Painted> painted;
    painted.swap(m_painted);
    return painted;
}

void TilePainter::stop()
{
    const QMutexLocker lock(&m_mutex);
    m_isStopped = true;
    m_isAbandoned = true;
    m_wanted.clear();
    m_hasChanged.wakeOne();
}

void TilePainter::run()
{
    std::unique_ptr<ContentPainter> pages;
    while (const std::optional<Tile> tile = next()) {
        if (!pages)
            pages = m_makePainter();
        if (deliver(imageOf(*tile, *pages, m_isAbandoned)))
            Q_EMIT painted();
    }
}

/** Waits for a tile; none when the thread must end. */
std::optional<Tile> TilePainter::next()
{
    const QMutexLocker lock(&m_mutex);
    while (m_wanted.isEmpty() && !m_isStopped)
        m_hasChanged.wait(&m_mutex);
    if (m_isStopped)
        return std::nullopt;
    const Tile tile = m_wanted.takeFirst();
    m_current = tile.key;
    m_isAbandoned = false;
    return tile;
}

/** Adds the picture of the current tile unless it is abandoned; true for the first to be taken. */
bool TilePainter::deliver(const QImage &image)
{
    const QMutexLocker lock(&m_mutex);
    const bool isFirst = m_painted.isEmpty() && !m_isAbandoned;
    if (!m_isAbandoned)
        m_painted.append({m_current, image});
    m_current.clear();
    return isFirst;
}
