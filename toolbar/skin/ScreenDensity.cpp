// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/ScreenDensity.h"

#include "toolbar/skin/Scale.h"

#include <QWidget>

namespace {

float byDesign(int dpi)
{
    return static_cast<float>(ScreenDensity::credible(dpi)) / ScreenDensity::designDpi;
}

} // namespace

float ScreenDensity::factor(const QWidget *widget)
{
    const auto chosen = Scale::chosenFor(widget);
    return chosen ? *chosen : byDesign(widget->physicalDpiX());
}

float ScreenDensity::verticalFactor(const QWidget *widget)
{
    const auto chosen = Scale::chosenFor(widget);
    return chosen ? *chosen : byDesign(widget->physicalDpiY());
}

double ScreenDensity::scale(const QWidget *widget)
{
    const auto chosen = Scale::chosenFor(widget);
    return chosen ? static_cast<double>(*chosen)
                  : static_cast<double>(credible(widget->physicalDpiX())) / designDpi;
}
