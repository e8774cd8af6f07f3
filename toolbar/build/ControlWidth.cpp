// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/ControlWidth.h"

#include "toolbar/skin/ScreenDensity.h"

#include <algorithm>

namespace {

constexpr double fewestCharacters = 2.5;
constexpr double mostCharacters = 4.0;
constexpr double buttonCharacterWidth = 18.0;
constexpr double shownEntryCharacterWidth = 22.0;
constexpr double arrowWidth = 12.0;

} // namespace

int ControlWidth::ofButton(const QString &text, float scale)
{
    double characters = static_cast<double>(text.size());
    if (characters < fewestCharacters)
        characters = fewestCharacters;
    else if (characters > mostCharacters)
        characters -= 1.0;
    return ScreenDensity::scaled(characters * buttonCharacterWidth, scale);
}

int ControlWidth::ofEmptyMenu(const QString &text, float scale)
{
    return ScreenDensity::scaled(
        shownEntryCharacterWidth * static_cast<double>(text.size()) + arrowWidth, scale);
}

int ControlWidth::ofMenu(const QString &text, const QStringList &entryTexts, int index, float scale)
{
    double characters = static_cast<double>(text.size());
    if (index >= 1) {
        for (const QString &entry : entryTexts)
            characters = std::max(characters, static_cast<double>(entry.size()));
    }
    characters = std::clamp(characters, fewestCharacters, mostCharacters);
    const double characterWidth = index >= 1 ? shownEntryCharacterWidth : buttonCharacterWidth;
    return ScreenDensity::scaled(characterWidth * characters + arrowWidth, scale);
}
