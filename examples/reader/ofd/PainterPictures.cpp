// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/DeviceDrawing.h"
#include "ofd/ImageMask.h"
#include "ofd/Painter.h"

#include <QPainter>

#include <algorithm>

namespace Ofd {

namespace {

/** The shape of a picture of that size, inset on all sides. */
QPainterPath frameOf(QSizeF size, const Border &border, qreal inset)
{
    const QRectF frame = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
    const QSizeF radii = border.cornerRadii - QSizeF(inset, inset);
    QPainterPath path;
    path.addRoundedRect(frame, std::max(0.0, radii.width()), std::max(0.0, radii.height()));
    return path;
}

} // namespace

void Painter::paintStamp(QPainter &painter, const Stamp &stamp)
{
    if (!stamp.drawing)
        return paintOne(painter, stamp.object);
    const QRectF &boundary = stamp.object.boundary;
    const QSizeF sheet = stamp.drawing->area(0).size();
    if (sheet.isEmpty() || !isOnDevice(painter, boundary))
        return;
    std::unique_ptr<Painter> &drawing = m_drawings[stamp.drawing.get()];
    if (!drawing)
        drawing = std::make_unique<Painter>(stamp.drawing);
    painter.save();
    clipTo(painter, boundary);
    paintInside(painter, stamp.object.clips, [&](QPainter &inside) {
        inside.setTransform(stamp.object.placement(), true);
        inside.scale(boundary.width() / sheet.width(), boundary.height() / sheet.height());
        drawing->paint(inside, 0, {}, m_isAbandoned);
    });
    painter.restore();
}

void Painter::paintContent(QPainter &painter, const Object &object, const Image &image)
{
    // Without a matrix the picture would be one millimetre wide; writers mean the whole boundary.
    const bool isWhole = object.matrix.isIdentity();
    const QSizeF size = isWhole ? object.boundary.size() : sizeOf(object.matrix);
    if (isWhole)
        painter.scale(size.width(), size.height());
    const QRectF square(0, 0, 1, 1);
    if (size.isEmpty() || !isOnDevice(painter, square))
        return;
    const QImage picture = pictureOf(image, sizeOf(painter.deviceTransform()));
    const QTransform toSquare = QTransform::fromScale(1 / size.width(), 1 / size.height());
    QVector<Clip> clips;
    if (image.border)
        clips.append({toSquare.map(frameOf(size, *image.border, 0)), {}});
    painter.save();
    paintInside(painter, clips, [&](QPainter &inside) { inside.drawImage(square, picture); });
    painter.restore();
    painter.setTransform(toSquare, true);
    if (image.border) {
        const Border &border = *image.border;
        const qreal width = border.line.pen().widthF();
        const QPainterPath frame = frameOf(size, border, width / 2);
        if (width > 0)
            stroke(painter, frame, visiblePen(painter, border.line, frame),
                   border.line.stroke.value_or(QBrush(Qt::black)));
    }
}

QImage Painter::pictureOf(const Image &image, QSizeF target)
{
    QImage picture = m_images.image(image.resource, target);
    if (picture.isNull())
        picture = m_images.image(image.substitute, target);
    if (image.mask.isEmpty() || picture.isNull())
        return picture;
    // A picture would hide what is under it where its mask is missing.
    const QImage mask = m_images.image(image.mask, target);
    if (mask.isNull())
        return QImage();
    const QPair<qint64, qint64> key(picture.cacheKey(), mask.cacheKey());
    if (const QImage *known = m_masked.object(key))
        return *known;
    const QImage result = masked(picture, mask);
    m_masked.insert(key, new QImage(result), 1 + int(result.sizeInBytes() >> 10));
    return result;
}

} // namespace Ofd
