// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

/** How the controls of a row share its width: numbers alone, in pixels. */
struct RowPlan
{
    enum class Form
    {
        Absent, ///< Takes no room.
        Full,
        Bare, ///< Without its text.
        Moved ///< In the menu at the end of the row.
    };

    /** A control or a separator, in the order of the row. */
    struct Item
    {
        bool isSeparator = false;
        int order = 0; ///< 1 gives way first, and of the same order the last; 0 never does.
        int fullWidth = 0;
        int bareWidth = 0;
        Form form = Form::Full;
    };

    std::vector<Item> items;
    int around = 0;    ///< What the row takes beside its items.
    int spacing = 0;   ///< Between two items.
    int moreWidth = 0; ///< Of the button that opens the menu.

    /**
     * Gives the items the first forms that fit @p available, or the last ones if none do: first all
     * that give way lose their texts, one after the other, and then they move. What is absent stays
     * so; a separator is shown between two controls only.
     */
    void fit(int available);
    /** What the row takes with the forms of now. */
    int width() const;
    /** Whether anything has moved, and the button that opens the menu is shown. */
    bool hasMoved() const;

private:
    std::vector<Item *> givingWay();
    void showSeparators();
};
