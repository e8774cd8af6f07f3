// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

} // namespace

double Contrast::ratio(const QColor &one, const QColor &other)
{
    constexpr double glare = 0.05; // What a screen reflects where it shows black.
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + glare) / (dark + glare);
}

bool Contrast::isDark(const QColor &colour)
{
    return ratio(colour, Qt::white) > ratio(colour, Qt::black);
}

QColor Contrast::mixed(const QColor &first, const QColor &second, double share)
{
    const auto channel = [share](int from, int to) {
        return from + static_cast<int>(std::lround((to - from) * share));
    };
    return QColor(channel(first.red(), second.red()), channel(first.green(), second.green()),
                  channel(first.blue(), second.blue()));
}

QColor Contrast::lightened(const QColor &colour, const QColor &ground, double ratio)
{
    constexpr double step = 0.01;
    const double hue = std::max(0.0, static_cast<double>(colour.hslHueF())); // Greys have none.
    const double saturation = static_cast<double>(colour.hslSaturationF());
    QColor lighter(colour.rgb());
    for (double lightness = static_cast<double>(colour.lightnessF());
         Contrast::ratio(lighter, ground) < ratio && lightness < 1.0;) {
        lightness = std::min(1.0, lightness + step);
        lighter = QColor::fromHslF(hue, saturation, lightness);
    }
    return QColor(lighter.rgb());
}

QColor Contrast::towards(const QColor &colour, const QColor &end, const QColor &other, double ratio)
{
    constexpr int steps = 50;
    QColor result(colour.rgb());
    for (int step = 1; Contrast::ratio(result, other) < ratio && step <= steps; ++step)
        result = mixed(colour, end, static_cast<double>(step) / steps);
    return result;
}

QColor Contrast::textOn(const QColor &ground)
{
    return isDark(ground) ? Qt::white : Qt::black;
}
