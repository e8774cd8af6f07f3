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

/** An area of a widget as it is seen in its window. */
inline QImage seen(const QWidget *widget, const QRect &area)
{
    QWidget *window = widget->window();
    return window->grab({widget->mapTo(window, area.topLeft()), area.size()}).toImage();
}

template <typename Predicate>
int pixelsOf(const QImage &image, Predicate isCounted)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += isCounted(image.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
}

/** How far the most distinct pixel is from the first one, from 0 to 255. */
inline int strongestMark(const QImage &image)
{
    int strongest = 0;
    const int ground = qGray(image.pixel(0, 0));
    pixelsOf(image, [&](const QColor &colour) {
        strongest = qMax(strongest, qAbs(qGray(colour.rgb()) - ground));
        return false;
    });
    return strongest;
}
