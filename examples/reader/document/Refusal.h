// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Permissions.h"

#include <QString>

/** What a document may forbid. Reading it and copying the file are never forbidden. */
enum class Act
{
    Edit,
    Annotate,
    Export,
    Sign,
    AddWatermark,
    Print
};

/** One sentence that says why an act is forbidden now; empty if it is allowed. */
QString refusalOf(Act act, const Ofd::Permissions &permissions);

/** One sentence about all that is forbidden now; empty if nothing is. */
QString refusalsOf(const Ofd::Permissions &permissions);
