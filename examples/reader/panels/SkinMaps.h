// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

/** The skin maps that the reader offers, for the skin in use. */
namespace SkinMaps {

/** The default colours of the toolbar. */
ToolBarSkinStyle blue();
ToolBarSkinStyle green();
ToolBarSkinStyle dark();

} // namespace SkinMaps
