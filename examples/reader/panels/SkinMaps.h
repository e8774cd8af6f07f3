// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

/** The colours that the reader offers, each for the skin that is in force. */
namespace SkinMaps {

/** The toolbar's own. */
ToolBarSkinStyle blue();
ToolBarSkinStyle green();
ToolBarSkinStyle dark();

} // namespace SkinMaps
