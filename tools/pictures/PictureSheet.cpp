// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "PictureSheet.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int sheetWidth = 1320;
constexpr int margin = 12;
constexpr int captionHeight = 16;
constexpr int captionSize = 11;
constexpr QRgb ground = 0xffb4bac2;

QFont captionFont(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

} // namespace

PictureSheet::PictureSheet(double scale)
    : m_scale(scale)
{
}

void PictureSheet::add(const QString &caption, const QPixmap &picture)
{
    // One pixel of the sheet for each pixel of the screen, also where Qt scales.
    QPixmap pixels = picture;
    pixels.setDevicePixelRatio(1.0);
    m_entries.append({caption, pixels, std::exchange(m_beginsRow, false)});
}

void PictureSheet::breakRow()
{
    m_beginsRow = true;
}

int PictureSheet::length(int designPixels) const
{
    return static_cast<int>(designPixels * m_scale);
}

QSize PictureSheet::cellSize(const Entry &entry) const
{
    const QFontMetrics metrics(captionFont(length(captionSize)));
    const int captionWidth = metrics.horizontalAdvance(entry.caption);
    return {std::max(entry.picture.width(), captionWidth),
            entry.picture.height() + length(captionHeight)};
}

QList<QPoint> PictureSheet::places(QSize *total) const
{
    const int gap = length(margin);
    QList<QPoint> places;
    QPoint pen(gap, gap);
    int rowHeight = 0;
    for (const Entry &entry : m_entries) {
        const QSize cell = cellSize(entry);
        const bool isFull = pen.x() > gap && pen.x() + cell.width() + gap > length(sheetWidth);
        if (entry.beginsRow || isFull) {
            pen = {gap, pen.y() + (places.isEmpty() ? 0 : rowHeight + gap)};
            rowHeight = 0;
        }
        places.append(pen);
        pen.rx() += cell.width() + gap;
        rowHeight = std::max(rowHeight, cell.height());
        *total = total->expandedTo({pen.x(), pen.y() + rowHeight + gap});
    }
    return places;
}

bool PictureSheet::save(const QString &path) const
{
    QSize size;
    const QList<QPoint> cells = places(&size);
    QPixmap sheet(size);
    sheet.fill(QColor(ground));
    QPainter painter(&sheet);
    painter.setFont(captionFont(length(captionSize)));
    for (int i = 0; i < cells.size(); ++i) {
        const QPoint cell = cells.at(i);
        painter.drawText(QRect(cell, QSize(size.width(), length(captionHeight))), Qt::AlignTop,
                         m_entries.at(i).caption);
        painter.drawPixmap(cell + QPoint(0, length(captionHeight)), m_entries.at(i).picture);
    }
    painter.end();
    return sheet.save(path);
}
