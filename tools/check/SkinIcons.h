// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** The icons that the library carries for its skins. */
namespace SkinIcons {

QStringList skins();

/** Whether the skin has an icon of that name, as a description writes it. */
bool exists(const QString &skin, const QString &name);

/** A name under which the skin has a file that is called alike; empty if there is none. */
QString elsewhere(const QString &skin, const QString &name);

} // namespace SkinIcons
