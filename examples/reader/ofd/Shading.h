// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace Ofd {

/** A paint as one painter needs it for one shape. */
struct Ink
{
    QBrush brush = Qt::NoBrush;
    QPainterPath extent; ///< Where the brush shows anything; empty for everywhere.
};

/** A colour that differs from place to place, in the coordinates of the object. */
class Shading
{
public:
    Shading() = default;
    virtual ~Shading() = default;
    Q_DISABLE_COPY(Shading)

    /** What paints the part of the shading inside of @p bounds. */
    virtual Ink ink(const QPainter &painter, const QRectF &bounds) const = 0;
};

/** A shading whose pixels are computed here. */
class SampledShading : public Shading
{
public:
    Ink ink(const QPainter &painter, const QRectF &bounds) const override;

protected:
    /** Draws on a transparent picture of premultiplied pixels. */
    virtual void draw(QImage &picture, const QTransform &toPicture) const = 0;
    /** How often draw() changes each pixel of @p area on average, or a larger number. */
    virtual qreal load(const QTransform &toArea, const QRectF &area) const;
};

/** The pixels of the painter's device that show @p rect, with a margin; null if there are none. */
QRect visiblePixels(const QPainter &painter, const QRectF &rect);

/** A brush that shows the picture in place of the pixels of @p area, for this transform only. */
QBrush brushOver(const QPainter &painter, const QRect &area, const QImage &picture);

/**
 * A transparent picture for the pixels of @p area, with twice their density but no more pixels than
 * Limits::shadingPixels divided by @p load.
 */
QImage pictureFor(const QRect &area, qreal load);

/** From the coordinates of the painter to the pixels of such a picture. */
QTransform toPicture(const QPainter &painter, const QRect &area, const QImage &picture);

} // namespace Ofd
