// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

class Appearance;

/** The host's own icon: drawn as it is in every scheme, and dimmed as the skin's icons are. */
QIcon givenIcon(const QIcon &icon, const Appearance &appearance);
