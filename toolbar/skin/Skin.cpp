// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/Skin.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/StaticResources.h"

namespace {

constexpr QLatin1String mainKey = latin1("[MainColor]");
constexpr QLatin1String checkedTabKey = latin1("[MainColor.checked]");
constexpr QLatin1String hoverKey = latin1("[MainColor.hover]");
constexpr QLatin1String pressedKey = latin1("[MainColor.pressed]");

const int *chosenSkin = nullptr;

using SkinMap = QMap<QString, QString>;

const SkinMap &defaults()
{
    static const SkinMap marodi{
        {QStringLiteral("[MainColor]"), QStringLiteral("#008AD9")},
        {QStringLiteral("[LightColor]"), QStringLiteral("#FFFFFF")},
        {QStringLiteral("[MainColor.checked]"), QStringLiteral("#1460AB")},
        {QStringLiteral("[ToolBarBgColor]"), QStringLiteral("#F5F5F5")},
        {QStringLiteral("[MainToolHoverColor]"), QStringLiteral("#EAEAEA")},
        {QStringLiteral("[MainToolPressColor]"), QStringLiteral("#B7B7B7")},
        {QStringLiteral("[MainToolCheckColor]"), QStringLiteral("#D3D3D3")},
    };
    static const SkinMap lum{
        {QStringLiteral("[MainColor]"), QStringLiteral("#008AD9")},
        {QStringLiteral("[LightColor]"), QStringLiteral("#FFFFFF")},
        {QStringLiteral("[MainColor.checked]"), QStringLiteral("#1368AD")},
        {QStringLiteral("[ToolBarBgColor]"), QStringLiteral("#F4F4F4")},
        {QStringLiteral("[Color.checked]"), QStringLiteral("rgb(195,198,202)")},
        {hoverKey, QStringLiteral("rgb(219,222,227)")},
        {pressedKey, QStringLiteral("rgb(183,185,190)")},
    };
    return Skin::isLum() ? lum : marodi;
}

void insertIfAbsent(SkinMap &map, const QString &key, const QString &value)
{
    if (!map.contains(key))
        map.insert(key, value);
}

} // namespace

void Skin::followSelector(const int *selector)
{
    keepStaticResources();
    chosenSkin = selector;
}

bool Skin::isLum()
{
    return chosenSkin && *chosenSkin == 1;
}

QString Skin::resourceDirectory()
{
    return isLum() ? QStringLiteral(":/mr_toolbar/Resources/lum/")
                   : QStringLiteral(":/mr_toolbar/Resources/marodi/");
}

QMap<QString, QString> Skin::initialMap(const QMap<QString, QString> &hostMap)
{
    if (hostMap.isEmpty())
        return defaults();

    SkinMap map = switchedMap(hostMap);
    if (isLum() && !hostMap.contains(pressedKey)) {
        // At construction the pressed grey goes under the hover key, deliberately: hosts have
        // matched their own colours to the result. A later switch fills in each key by itself.
        map.insert(hoverKey, map.take(pressedKey));
    }
    return map;
}

QMap<QString, QString> Skin::switchedMap(const QMap<QString, QString> &hostMap)
{
    SkinMap map = hostMap;
    const SkinMap &own = defaults();
    for (auto entry = own.cbegin(); entry != own.cend(); ++entry)
        insertIfAbsent(map, entry.key(), entry.value());
    return map;
}

QString Skin::mainColour(const QMap<QString, QString> &hostMap)
{
    for (const QLatin1String key : {mainKey, checkedTabKey}) {
        if (hostMap.contains(key))
            return hostMap.value(key);
    }
    return defaults().value(mainKey);
}
