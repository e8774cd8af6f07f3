// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/TurnedIcon.h"

#include "toolbar/skin/PaintedIcon.h"

#include <QPainter>

QIcon turnedIcon(const QIcon &icon)
{
    if (icon.isNull())
        return QIcon();
    return paintedIcon(
        [icon](QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) {
            // Turning the painter instead would put the lines between the pixels.
            const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
            QPixmap picture(rect.size() * ratio);
            picture.fill(Qt::transparent);
            {
                QPainter upright(&picture);
                icon.paint(&upright, picture.rect(), Qt::AlignCenter, mode, state);
            }
            picture = picture.transformed(QTransform().rotate(180));
            picture.setDevicePixelRatio(ratio);
            painter->drawPixmap(rect.topLeft(), picture);
        });
}
