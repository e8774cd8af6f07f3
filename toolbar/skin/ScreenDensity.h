// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/** What the skins' lengths at 96 dpi are multiplied by for a widget. */
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

/**
 * By how much longer than at 96 dpi the lengths of a widget are: by the density of its screen, if
 * the host has not chosen a scale for its toolbar. In single precision, as sizes are computed.
 */
float factor(const QWidget *widget);
/** The same from the density in the other direction. */
float verticalFactor(const QWidget *widget);

/** The same, as the sheets of single controls are written with it. */
double scale(const QWidget *widget);

/** A length at 96 dpi times the factor, truncated. */
inline int scaled(double designLength, float factor)
{
    return static_cast<int>(designLength * static_cast<double>(factor));
}

} // namespace ScreenDensity
