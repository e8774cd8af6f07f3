// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QFont;

/**
 * A font whose glyphs are all empty and half an em wide, one for each character of the basic plane.
 * What is written in it is not seen, but can be found and copied as it was written; in a usual font
 * characters share glyphs, and a PDF file can name only one character for each.
 */
namespace HiddenFont {

/** The font file (TrueType). */
QByteArray file();

/** The font, which is added to those of the application with the first call. */
QFont font(int pixelSize);

} // namespace HiddenFont
