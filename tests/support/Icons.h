// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QTemporaryDir>
#include <QToolButton>

inline QIcon colouredIcon(const QColor &colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return {pixmap};
}

inline QColor shownColour(const QToolButton &button)
{
    return button.icon().pixmap(16, 16).toImage().pixelColor(8, 8);
}

/** Saves a blue picture of 60 by 40 pixels and returns its path; empty if that fails. */
inline QString savedPicture(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("pen.png"));
    QImage picture(60, 40, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    return picture.save(path) ? path : QString();
}
