// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/** How dense the screen of a widget is: what the skins' lengths at 96 dpi are multiplied by. */
namespace ScreenDensity {

inline constexpr int designDpi = 96;

/**
 * The dpi themselves, or those of the design where a screen reports an impossible figure: no
 * physical size, that of a wall, or one millimetre a pixel, as virtual screens do. Lengths would be
 * scaled to nothing, or beyond the screen.
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

/** The same in single precision, as the sizes of the toolbar are computed with it. */
inline float factor(const QWidget *widget)
{
    return static_cast<float>(dpiX(widget)) / designDpi;
}

/** A length at 96 dpi times the factor, truncated. */
inline int scaled(double designLength, float factor)
{
    return static_cast<int>(designLength * static_cast<double>(factor));
}

} // namespace ScreenDensity
