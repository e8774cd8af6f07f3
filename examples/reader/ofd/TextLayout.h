// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/FontSet.h"

#include <functional>

namespace Ofd {

/** One glyph of a character with its position in the coordinates of the text object. */
struct PlacedGlyph
{
    QString text; ///< Empty for a second glyph of the same characters.
    const Glyph *glyph = nullptr;
    QTransform place; ///< From glyph coordinates, with an em of 1.
    qreal width = 0;  ///< Up to the next character, in ems of @ref place.
};

/**
 * Places the characters of a run and hands them on part by part, so that a run of a million of them
 * does not fill the memory. The face owns the glyphs.
 */
void layOutInParts(const Text &text, const TextRun &run, Face &face,
                   const std::function<void(const QVector<PlacedGlyph> &)> &take);
/** All parts together. */
QVector<PlacedGlyph> layOut(const Text &text, const TextRun &run, Face &face);

} // namespace Ofd
