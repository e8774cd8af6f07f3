// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/Scheme.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/Contrast.h"

#include <QPalette>

namespace {

struct NamedScheme
{
    QLatin1String name;
    Scheme scheme;
};

constexpr NamedScheme namedSchemes[] = {
    {latin1("light"), Scheme::Light},
    {latin1("dark"), Scheme::Dark},
    {latin1("contrast"), Scheme::Contrast},
    {latin1("system"), Scheme::System},
};

} // namespace

std::optional<Scheme> schemeNamed(const QString &word)
{
    for (const NamedScheme &entry : namedSchemes) {
        if (word == entry.name)
            return entry.scheme;
    }
    return std::nullopt;
}

Scheme schemeInUse(Scheme choice, const QPalette &palette)
{
    if (choice != Scheme::System)
        return choice;
    return Contrast::isDark(palette.color(QPalette::Window)) ? Scheme::Dark : Scheme::Light;
}
