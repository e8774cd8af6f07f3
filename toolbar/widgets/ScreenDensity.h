#pragma once

#include <QWidget>

/** How dense the screen of a widget is: what the skins' lengths at 96 dpi are multiplied by. */
namespace ScreenDensity {

inline constexpr int designDpi = 96;

/**
 * The dpi themselves, or those of the design where a screen tells nonsense: without a physical
 * size, with that of a wall, or with a millimetre for every pixel, as screens that are none tell,
 * everything would be laid out in no room at all.
 */
constexpr int credible(int dpi)
{
    constexpr int least = designDpi / 3;
    constexpr int most = designDpi * 20;
    return dpi < least || dpi > most ? designDpi : dpi;
}

inline int dpiX(const QWidget *widget)
{
    return credible(widget->physicalDpiX());
}

/** By how much longer than at 96 dpi the lengths on the widget's screen are. */
inline double scale(const QWidget *widget)
{
    return static_cast<double>(dpiX(widget)) / designDpi;
}

} // namespace ScreenDensity
