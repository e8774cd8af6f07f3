// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/Scheme.h"

#include <QIcon>

/**
 * The path of an icon that is named in a description, below the skin's directory of resources;
 * empty for an empty name and where there is no such file.
 */
QString skinIconPath(const QString &directory, const QString &name);

/**
 * The icon of a file or resource, in the colours of a scheme: empty for a path that is no file. It
 * is read when it is first painted, shared by all toolbars of the process, and paler while its
 * control is disabled, on dark grounds as well as on light ones.
 */
QIcon skinIcon(const QString &path, const SchemeLook &look = {});

/** Where the skin would have the icon of that name. */
QString skinIconFile(const QString &directory, const QString &name);

/**
 * The drawing of the same thing for @p side physical pixels and for a coloured ground, where there
 * is one; or else for that side, or @p path.
 */
QString drawingForStrip(const QString &path, int side);

/** Whether a drawing is one for the coloured strip: white all over, and unseen elsewhere. */
bool isForColouredStrip(const QString &path);

/** How much of an icon is left while its control is disabled. */
qreal disabledIconOpacity(const SchemeLook &look);
