// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

struct SchemeColours;

/**
 * The style sheets by which split buttons show which of their two parts the pointer is over.
 * Without the colours of a scheme they have those of the skin.
 */
namespace HoverSheets {

/**
 * The sheet of a drop button under the pointer.
 * @param inExtendMenu whether the button lives in the menu of what a tool row has no room for
 * @param overArrow whether the pointer is over the arrow that opens the button's menu
 * @param scale physical dpi by 96; the height of a button in a menu follows it
 */
QString dropButton(bool inExtendMenu, bool overArrow, bool isLum, double scale,
                   const SchemeColours *colours = nullptr);

/** The sheet of a checkable group button under the pointer. */
QString groupButton(bool overArrow, bool isLum, const SchemeColours *colours = nullptr);

/**
 * A button's own sheet, with its roles filled in: "[surface]", "[hover]", "[pressed]", "[checked]",
 * and "[arrow]" for the file, below the skin's directory, of the arrow that opens a menu.
 */
QString filled(const QString &sheet, bool isLum, const SchemeColours *colours);

} // namespace HoverSheets
