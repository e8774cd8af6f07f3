// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/** What a drop button asks of the toolbar that it is a child of. */
class ExtendMenuOwner
{
public:
    virtual ~ExtendMenuOwner() = default;

    /** Has the menu of what a row has no room for lay its items out again. */
    virtual void FlushExtendMenu() = 0;
};
