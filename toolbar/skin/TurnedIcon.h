// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

/** The icon upside down, as it is whenever this one is painted. */
QIcon turnedIcon(const QIcon &icon);
