// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/FollowingIcon.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/PaintedIcon.h"
#include "toolbar/skin/SkinIcon.h"

#include <QPointer>

QIcon followingIcon(const QString &path, const Appearance *appearance)
{
    // Where there is no file, there is no icon in any scheme.
    if (skinIcon(path).isNull())
        return QIcon();
    const QPointer<const Appearance> look(appearance);
    return paintedIcon([path, look](QPainter *painter, const QRect &rect, QIcon::Mode mode,
                                    QIcon::State state) {
        skinIcon(path, Appearance::lookOf(look)).paint(painter, rect, Qt::AlignCenter, mode, state);
    });
}
