// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRgb>
#include <QString>

#include <optional>

class QPalette;

/** How light a toolbar is. The skin map says it in words; see schemeNamed(). */
enum class Scheme
{
    Light,    ///< The skin as its template and its map have it.
    Dark,     ///< Light texts and icons on dark grounds.
    Contrast, ///< The same on black, with stronger frames, for users who see little.
    System    ///< Light or dark, as the palette of the application is.
};

/** The scheme that a host calls so; nothing for a word that is none. */
std::optional<Scheme> schemeNamed(const QString &word);

/** What a choice comes to: the scheme itself, or, for the system's, what goes with @p palette. */
Scheme schemeInUse(Scheme choice, const QPalette &palette);

/** What all colours of a scheme follow from. */
struct SchemeLook
{
    Scheme scheme = Scheme::Light; ///< Never the system's.
    QRgb mainColour = 0;           ///< Of the skin map; 0 where the scheme has no use for it.

    bool isLight() const { return scheme == Scheme::Light; }
    bool operator==(const SchemeLook &other) const
    {
        return scheme == other.scheme && mainColour == other.mainColour;
    }
    bool operator!=(const SchemeLook &other) const { return !(*this == other); }
};
