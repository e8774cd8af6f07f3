#pragma once

#include <QMap>
#include <QString>

/** Which skin is in use, where its resources are and which colours it supplies by itself. */
namespace Skin {

/** Whether the compact skin "lum" is in use; "marodi" otherwise. */
bool isLum();

/** The directory of the skin's resources, with its trailing slash. */
QString resourceDirectory();

/** Key of a skin map whose presence leaves it to the host to apply the style sheet. */
inline constexpr char externalSheetKey[] = "externalqss";

/** The map that a toolbar starts with: the host's, completed with this skin's defaults. */
QMap<QString, QString> initialMap(const QMap<QString, QString> &hostMap);

/** The map after a change of colours: the host's, completed with this skin's defaults. */
QMap<QString, QString> switchedMap(const QMap<QString, QString> &hostMap);

} // namespace Skin
