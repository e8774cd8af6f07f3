// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/commands/Backgrounds.h"

#include "toolbar/description/Names.h"

namespace {

struct Background
{
    BackgroundStyle style;
    QLatin1String name;
};

/** The first is what everything else stands for. */
constexpr Background backgrounds[]{
    {Background_Default, Name::background},
    {Background_Daytime, Name::backgroundDay},
    {Background_Nighttime, Name::backgroundNight},
    {Background_Eyeguard, Name::backgroundEyeCare},
    {Background_Parchment, Name::backgroundParchment},
};

} // namespace

bool Backgrounds::isBackground(const QString &name)
{
    return name.contains(Word::background);
}

BackgroundStyle Backgrounds::style(const QString &name)
{
    for (const Background &background : backgrounds) {
        if (name == background.name)
            return background.style;
    }
    return backgrounds[0].style;
}

QString Backgrounds::name(BackgroundStyle style)
{
    for (const Background &background : backgrounds) {
        if (style == background.style)
            return background.name;
    }
    return backgrounds[0].name;
}
