// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

/** Which skin is in use, where its resources are and which colours it supplies by itself. */
namespace Skin {

/**
 * Tells where the number of the chosen skin stands: 1 is "lum", anything else "marodi". It is read
 * at each use, so that a host may choose the skin late. Until this is called, or with null, the
 * skin is "marodi".
 */
void followSelector(const int *selector);

/** Whether the compact skin "lum" is in use; "marodi" otherwise. */
bool isLum();

/** The directory of the skin's resources, with its trailing slash. */
QString resourceDirectory();

/** The map that a toolbar starts with: the host's, completed with this skin's defaults. */
QMap<QString, QString> initialMap(const QMap<QString, QString> &hostMap);

/** The map after a change of colours: the host's, completed with this skin's defaults. */
QMap<QString, QString> switchedMap(const QMap<QString, QString> &hostMap);

/**
 * What the accents of a dark scheme follow: the main colour of the host's map, or else that of its
 * checked tab, which is the only one that shows in "lum", or else the skin's own.
 */
QString mainColour(const QMap<QString, QString> &hostMap);

} // namespace Skin
