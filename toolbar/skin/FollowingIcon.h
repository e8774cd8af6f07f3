// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

class Appearance;

/**
 * The icon of a file or resource in the colours that the appearance has whenever it is painted, and
 * in the light ones once that is gone; empty for a path that is no file.
 */
QIcon followingIcon(const QString &path, const Appearance *appearance);
