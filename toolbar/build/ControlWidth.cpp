// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/ControlWidth.h"

#include <algorithm>

namespace {

constexpr double fewestCharacters = 2.5;
constexpr double mostCharacters = 4.0;
constexpr double buttonCharacterWidth = 18.0;
constexpr double shownEntryCharacterWidth = 22.0;
constexpr double groupMenuCharacterWidth = 24.0;

double longest(const QStringList &texts, double fewest)
{
    double characters = fewest;
    for (const QString &text : texts)
        characters = std::max(characters, static_cast<double>(text.size()));
    return characters;
}

} // namespace

double ControlWidth::ofButton(const QString &text)
{
    double characters = static_cast<double>(text.size());
    if (characters < fewestCharacters)
        characters = fewestCharacters;
    else if (characters > mostCharacters)
        characters -= 1.0;
    return characters * buttonCharacterWidth;
}

double ControlWidth::ofEmptyMenu(const QString &text)
{
    return shownEntryCharacterWidth * static_cast<double>(text.size()) + arrow;
}

double ControlWidth::ofMenu(const QString &text, const QStringList &entryTexts, int index)
{
    double characters = static_cast<double>(text.size());
    if (index >= 1)
        characters = longest(entryTexts, characters);
    characters = std::clamp(characters, fewestCharacters, mostCharacters);
    const double characterWidth = index >= 1 ? shownEntryCharacterWidth : buttonCharacterWidth;
    return characterWidth * characters + arrow;
}

double ControlWidth::ofGroupMenu(const QStringList &texts)
{
    return longest(texts, 0.0) * groupMenuCharacterWidth + arrow;
}
