// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** What the library makes of an element, which follows from its tag, its name and its parent. */
enum class Role
{
    Nothing, ///< Nothing is built from it, nor from what it holds.
    Root,
    AppSection,
    QuickSection,
    TabSection,
    SearchSection,
    AdditionalSection,
    AppButton,
    SurplusAppButton, ///< There is room for two.
    QuickButton,
    QuickSet,
    Tab,
    RowButton,
    RowMenu,
    ButtonGroup,
    GroupButton,
    GroupMenu,
    ComboBox,
    Item,
    RowLabel,
    RowField,
    Separator,
    Extra,
    IdleExtra, ///< In a tab that shows no extra groups.
    ExtraLabel,
    ExtraField,
    ExtraButton,
    SubMenu,
    MenuEntry,
    SearchLabel,
    SearchField,
    SearchButton,
    SearchSet,
    NamelessSearchButton, ///< Its name tells nothing of its part in the search.
    AdditionalButton,
};
