// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The resources of a host, which the icons of its descriptions are looked up in. */
namespace HostResources {

/**
 * Loads resources for the rest of the program.
 *
 * @param path a file made with rcc --binary, a .qrc file, or a folder with icons: its files are
 *             icons of all skins, by their path below the folder, but those below its folders
 *             "marodi" and "lum" are icons of that skin only
 * @return what keeps them from being loaded; empty if they are
 */
QString load(const QString &path);

} // namespace HostResources
