// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/SkinMaps.h"

#include <toolbar/NewToolBar.h>

namespace {

bool isLum()
{
    return NewToolBar::uiStyle == 1;
}

} // namespace

ToolBarSkinStyle SkinMaps::blue()
{
    // Both keys are given, because not every skin has a default for them at construction.
    return {
        {"[MainColor.hover]", "rgb(219,222,227)"},
        {"[MainColor.pressed]", "rgb(183,185,190)"},
    };
}

ToolBarSkinStyle SkinMaps::green()
{
    if (isLum()) {
        return {
            {"[MainColor.checked]", "#1B7A3D"}, {"[ToolBarBgColor]", "#EAF4ED"},
            {"[Color.checked]", "#BFDDC8"},     {"[MainColor.hover]", "#D5EADB"},
            {"[MainColor.pressed]", "#A5CDB2"}, {"rgb(195, 198, 202)", "#BFDDC8"},
        };
    }
    return {
        {"[MainColor]", "#1B7A3D"},          {"[MainColor.checked]", "#12552A"},
        {"[ToolBarBgColor]", "#F2F7F3"},     {"[MainToolHoverColor]", "#E2EFE5"},
        {"[MainToolCheckColor]", "#CBE3D2"}, {"[MainToolPressColor]", "#A9CDB4"},
        {"[MainColor.hover]", "#E2EFE5"},    {"[MainColor.pressed]", "#A9CDB4"},
    };
}

ToolBarSkinStyle SkinMaps::dark()
{
    if (isLum()) {
        return {
            {"[MainColor.checked]", "#20262C"},
            {"[ToolBarBgColor]", "#BBC0C6"},
            {"[Color.checked]", "#E4E8EC"},
            {"[MainColor.hover]", "#CFD3D8"},
            {"[MainColor.pressed]", "#92989F"},
            {"rgb(195, 198, 202)", "#E4E8EC"},
            {"#a0a0a0", "#7A8189"},
        };
    }
    return {
        {"[MainColor]", "#20262C"},
        {"[MainColor.checked]", "#3D4853"},
        {"[ToolBarBgColor]", "#CFD4DA"},
        {"[MainToolHoverColor]", "#DDE1E6"},
        {"[MainToolCheckColor]", "#F0F3F6"},
        {"[MainToolPressColor]", "#B4BBC3"},
        {"[MainColor.hover]", "#DDE1E6"},
        {"[MainColor.pressed]", "#B4BBC3"},
        {"#a0a0a0", "#858B93"},
    };
}
