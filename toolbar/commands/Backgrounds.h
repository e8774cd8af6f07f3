// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/ToolBarTypes.h"

/** The names of the controls that choose a page background. */
namespace Backgrounds {

/** Whether a name is a background's: any name with the word in it is, deliberately. */
bool isBackground(const QString &name);

/** The style that a control of that name chooses; the default for names that are not known. */
BackgroundStyle style(const QString &name);

/** The name of the control for a style; that of the default for values outside the enumeration. */
QString name(BackgroundStyle style);

} // namespace Backgrounds
