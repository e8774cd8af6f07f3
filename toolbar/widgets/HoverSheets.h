// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

struct SchemeColours;

/** The style sheets by which split buttons show which of their two parts the pointer is over. */
namespace HoverSheets {

/**
 * The sheet of a drop button under the pointer.
 * @param inExtendMenu whether the button lives in the menu of what a tool row has no room for
 * @param overArrow whether the pointer is over the arrow that opens the button's menu
 * @param scale physical dpi by 96; the height of a button in a menu follows it
 */
QString dropButton(bool inExtendMenu, bool overArrow, bool isLum, double scale);

/** The sheet of a checkable group button under the pointer. */
QString groupButton(bool overArrow, bool isLum);

/**
 * A sheet of fixed colours, one of these or a button's own, in those of a scheme: the part under
 * the pointer stands out from the other one, and what is checked can be told from both. Without
 * colours the sheet stays as it is.
 */
QString inScheme(QString sheet, const SchemeColours *colours);

} // namespace HoverSheets
