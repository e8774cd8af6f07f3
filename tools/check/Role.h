// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** The kind of control that the library makes from an element, by its tag, name and parent. */
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
