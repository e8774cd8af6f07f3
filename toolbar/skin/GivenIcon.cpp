// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/GivenIcon.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/PaintedIcon.h"
#include "toolbar/skin/SkinIcon.h"

#include <QPainter>
#include <QPointer>

QIcon givenIcon(const QIcon &icon, const Appearance &appearance)
{
    const QPointer<const Appearance> look(&appearance);
    return paintedIcon(
        [icon, look](QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) {
            const bool isDisabled = mode == QIcon::Disabled;
            const qreal opacity = painter->opacity();
            if (isDisabled)
                painter->setOpacity(opacity * disabledIconOpacity(Appearance::lookOf(look)));
            icon.paint(painter, rect, Qt::AlignCenter, isDisabled ? QIcon::Normal : mode, state);
            painter->setOpacity(opacity);
        });
}
