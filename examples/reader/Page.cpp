#include "Page.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <limits>

QFont TextLine::font() const
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    // Hinted widths would depend on the zoom, and hits would not sit on their words.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QList<QRectF> Page::rectsOf(int start, int length) const
{
    QList<QRectF> rects;
    for (const TextLine &line : lines) {
        const int from = std::max(start, line.start);
        const int to = std::min(start + length, line.start + line.length);
        if (from >= to)
            continue;
        const QFontMetricsF metrics(line.font());
        const qreal left = metrics.horizontalAdvance(text.mid(line.start, from - line.start));
        const qreal width = metrics.horizontalAdvance(text.mid(from, to - from));
        rects.append(QRectF(line.rect.left() + left, line.rect.top(), width, line.rect.height()));
    }
    return rects;
}

int Page::positionAt(QPointF point) const
{
    const TextLine *nearest = nullptr;
    qreal smallest = std::numeric_limits<qreal>::max();
    for (const TextLine &line : lines) {
        const qreal distance = std::abs(line.rect.center().y() - point.y());
        if (distance < smallest) {
            smallest = distance;
            nearest = &line;
        }
    }
    if (!nearest)
        return -1;

    const QFontMetricsF metrics(nearest->font());
    qreal right = nearest->rect.left();
    for (int i = 0; i < nearest->length; ++i) {
        const qreal width = metrics.horizontalAdvance(text.at(nearest->start + i));
        if (point.x() < right + width / 2)
            return nearest->start + i;
        right += width;
    }
    return nearest->start + nearest->length;
}
