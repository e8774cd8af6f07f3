#pragma once

#include <QIcon>
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
