// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Ink.h"

#include <QRectF>

class QImage;
class QTransform;

namespace Ofd {

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
    /** Draws on a transparent image of premultiplied pixels. */
    virtual void draw(QImage &image, const QTransform &toImage) const = 0;
    /** How often draw() changes each pixel of @p area on average, or a larger number. */
    virtual qreal load(const QTransform &toDevice, const QRectF &area) const;
};

} // namespace Ofd
