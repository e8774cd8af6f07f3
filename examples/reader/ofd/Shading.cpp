// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Shading.h"

#include "ofd/AreaPicture.h"

#include <QPainter>

namespace Ofd {

Ink SampledShading::ink(const QPainter &painter, const QRectF &bounds) const
{
    const QRect area = visiblePixels(painter, bounds);
    const QTransform toDevice = painter.deviceTransform();
    if (area.isEmpty() || !toDevice.isInvertible())
        return {};
    AreaPicture picture(painter, area, load(toDevice, QRectF(area)));
    draw(picture.image, picture.toImage);
    return {picture.brush(), {}};
}

qreal SampledShading::load(const QTransform &, const QRectF &) const
{
    return 1;
}

} // namespace Ofd
