// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** The icons in the resources of the library. */
namespace SkinIcons {

QStringList skins();

/** The directory of the icons of a skin in the resources, with a slash at its end. */
QString directory(const QString &skin);

/** Whether the skin has an icon of that name, in the spelling of descriptions. */
bool exists(const QString &skin, const QString &name);

/** The name of an icon with the same file name in another folder; empty if there is none. */
QString elsewhere(const QString &skin, const QString &name);

} // namespace SkinIcons
