// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>
#include <QImage>
#include <QRect>
#include <QTransform>

class QPainter;

namespace Ofd {

/** The pixels of the painter's device that show @p rect, with a margin; null if there are none. */
QRect visiblePixels(const QPainter &painter, const QRectF &rect);

/** Pixels of a picture for each pixel of the painter's device, in each direction. */
qreal pictureDensity(const QPainter &painter);

/** A picture, transparent at first, that stands for some pixels of a painter's device. */
struct AreaPicture
{
    /**
     * With a density that suits the device, but no more pixels than Limits::shadingPixels divided
     * by @p load.
     */
    AreaPicture(const QPainter &painter, const QRect &area, qreal load = 1);

    /** A brush that shows the picture in its place, for the transform that the painter had. */
    QBrush brush() const;

    QImage image;
    QTransform toImage; ///< From the coordinates of the painter.
};

} // namespace Ofd
