// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/SchemeColours.h"

#include <QByteArray>
#include <QIcon>

/** Drawings that were made for light grounds, in the colours of a dark scheme. */
namespace IconColours {

/**
 * What a colour of a drawing becomes: dark lines light and light grounds dark, blue lines the
 * accent, and lines of other hues lighter ones that are seen on every ground of the scheme.
 */
QColor recoloured(const QColor &colour, const SchemeColours &colours);

/**
 * The text of an SVG drawing with its colours replaced. One that is white all over is made for a
 * coloured ground and becomes as light as texts are.
 */
QByteArray recoloured(const QByteArray &svg, const SchemeColours &colours);

/** Whether the file is a drawing by its name; others have pixels. */
bool isSvg(const QString &path);

/** The icon of a file; recoloured, unless @p look is light. */
QIcon drawing(const QString &path, const SchemeLook &look);

/** The icon of a file in light lines, for a strip of that colour. */
QIcon stripDrawing(const QString &path, const QColor &strip);

} // namespace IconColours
