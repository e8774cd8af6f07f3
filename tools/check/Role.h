// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** The kind of control that the library makes from an element, by its tag, name and parent. */
enum class Role
{
    Nothing, ///< Nothing is built from it or its children.
    Root,
    AppSection,
    QuickSection,
    TabSection,
    SearchSection,
    AdditionalSection,
    AppButton,
    SurplusAppButton, ///< Only the first two are used.
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
    IdleExtra, ///< In a tab without the attribute scalable.
    ExtraLabel,
    ExtraField,
    ExtraButton,
    SubMenu,
    MenuEntry,
    SearchLabel,
    SearchField,
    SearchButton,
    SearchSet,
    NamelessSearchButton, ///< Its name does not give its function.
    AdditionalButton,
};
