// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/HoverSheets.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/SchemeColours.h"

#include <QStringList>

namespace {

// The texts are kept to the letter, deliberately: a missing colon, a single colon, a stray "%" and
// a doubled brace are part of them, and the look of the buttons is what Qt makes of that.

constexpr char rowArrowMarodi[] =
    "QToolButton::menu-button:hover{background-color:%1;border:2px solid %2;"
    "border-left:2px solid %2;border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton:menu-button:pressed{background-color:%1;} "
    "QToolButton{background-color:%2;border:1px solid %2;}";

constexpr char rowBodyMarodi[] =
    "QToolButton{background-color:%1;border 1px solid %2;} QToolButton::menu-button:hover{"
    "background-color:%2;border:2px solid %2;border-left:2px solid %2;"
    "border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton::menu-button:pressed{background-color:%1;}";

constexpr char rowArrowLum[] =
    "QToolButton{background-color:#ffffff;border:1px solid %1;border-radius:3px;} "
    "QToolButton::menu-button{background-color:%1;border:1px solid %1;"
    "border-top-right-radius:3px;border-bottom-right-radius:3px;} "
    "QToolButton::menu-button:pressed{background-color:%2;border:none;"
    "%border-top-right-radius:3px;border-bottom-right-radius:3px;}";

constexpr char rowBodyLum[] =
    "QToolButton{background-color:%1;border-radius:3px;} "
    "QToolButton:pressed{background-color:%2;} QToolButton:checked{background-color:%3;} "
    "QToolButton::menu-button{background-color:#ffffff;border:1px solid %1;"
    "border-top-right-radius:3px;border-bottom-right-radius:3px;}";

constexpr char menuArrowMarodi[] =
    "QToolButton::menu-button:hover{background-color:%1;border:2px solid %2;"
    "border-left:2px solid %2;border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton:menu-button:pressed{background-color:%1;} QToolButton::menu-arrow{"
    "image: url(:/mr_toolbar/Resources/marodi/icons/icon19-22/arrowDown.svg);"
    "subcontrol-position: right center;top:0.1em;} "
    "QToolButton{background-color:%2;border:2px solid %2;height:%3em;padding-left:2px;}} "
    "QToolButton:pressed{background-color:%1;}";

constexpr char menuBodyMarodi[] =
    "QToolButton::menu-button:hover{background-color:%2;border:2px solid %2;"
    "border-left:2px solid %2;border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton:menu-button:pressed{background-color:%2;} QToolButton::menu-arrow{"
    "image: url(:/mr_toolbar/Resources/marodi/icons/icon19-22/arrowDown.svg);"
    "subcontrol-position: right center;top:0.1em;} "
    "QToolButton{background-color:%1;border:2px solid %2;height:%3em;padding-left:2px;}} "
    "QToolButton:pressed{background-color:%1;}";

constexpr char menuArrowLum[] =
    "QToolButton{padding-left:3px;background-color:#ffffff;border:1px solid %3;"
    "border-radius:3px;} QToolButton::menu-button{background-color:%3;border:none;} "
    "QToolButton::menu-button:pressed{background-color:%2;border:none;} "
    "QToolButton:checked{background-color:%1;border:none;}";

constexpr char menuBodyLum[] =
    "QToolButton::menu-button:hover{background-color:#ffffff;} QToolButton::menu-indicator{"
    "image: url(:/mr_toolbar/Resources/lum/icons/icon19-22/arrowDown.svg);"
    " subcontrol-position: right center;} "
    "QToolButton{background-color:%1;border:1px solid %1;padding-left:3px;} "
    "QToolButton:pressed{background-color:%2;} QToolButton:checked{background-color:%3;}";

constexpr char groupArrowMarodi[] =
    "QToolButton::menu-button:hover{background-color:%1;border:2px solid %2;"
    "border-left:2px solid %2;border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton{background-color:%2;border:2px solid %2;} QToolButton:pressed{background:%1;}";

constexpr char groupBodyMarodi[] =
    "QToolButton::menu-button:hover{background-color:%2;border:2px solid %2;"
    "border-left:2px solid %2;border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton{background:%1;border:2px solid %2;}";

// The colours are fixed; they do not come from the skin map. A scheme replaces them.
constexpr QLatin1String white = latin1("#FFFFFF");
constexpr QLatin1String grey = latin1("#EAEAEA");
constexpr QLatin1String hovered = latin1("rgb(219,222,227)");
constexpr QLatin1String pressed = latin1("rgb(183,185,190)");
constexpr QLatin1String checked = latin1("rgb(195,198,202)");

struct Replacement
{
    QLatin1String fixed;
    QColor SchemeColours::*colour;
};

// White in capitals is the part under the pointer, of marodi; in small letters the other one, of
// lum.
constexpr Replacement replacements[] = {
    {white, &SchemeColours::pressed},
    {grey, &SchemeColours::hover},
    {latin1("#ffffff"), &SchemeColours::surface},
    {hovered, &SchemeColours::hover},
    {pressed, &SchemeColours::pressed},
    {checked, &SchemeColours::checked},
    {latin1("#D3D3D3"), &SchemeColours::checked},
};

QString filled(const char *sheet, const QStringList &values)
{
    QString text = QString::fromLatin1(sheet);
    for (const QString &value : values)
        text = text.arg(value);
    return text;
}

/** What a button on a tool row shows in the skin lum, drop button or group button. */
QString lumRowSheet(bool overArrow)
{
    return overArrow ? filled(rowArrowLum, {hovered, pressed})
                     : filled(rowBodyLum, {hovered, pressed, checked});
}

QString menuSheet(bool overArrow, bool isLum, double scale)
{
    if (isLum) {
        return overArrow ? filled(menuArrowLum, {checked, pressed, hovered})
                         : filled(menuBodyLum, {hovered, pressed, checked});
    }
    constexpr double heightInEms = 2.0;
    const QString height = QStringLiteral("%1").arg(heightInEms * scale);
    return filled(overArrow ? menuArrowMarodi : menuBodyMarodi, {white, grey, height});
}

} // namespace

QString HoverSheets::dropButton(bool inExtendMenu, bool overArrow, bool isLum, double scale)
{
    if (inExtendMenu)
        return menuSheet(overArrow, isLum, scale);
    if (isLum)
        return lumRowSheet(overArrow);
    return filled(overArrow ? rowArrowMarodi : rowBodyMarodi, {white, grey});
}

QString HoverSheets::groupButton(bool overArrow, bool isLum)
{
    if (isLum)
        return lumRowSheet(overArrow);
    return filled(overArrow ? groupArrowMarodi : groupBodyMarodi, {white, grey});
}

QString HoverSheets::inScheme(QString sheet, const SchemeColours *colours)
{
    if (!colours)
        return sheet;

    for (const Replacement &replacement : replacements)
        sheet.replace(replacement.fixed, (colours->*replacement.colour).name());
    sheet.replace(QLatin1String("icons/icon19-22/arrowDown"), QLatin1String("dark/arrowDown"));
    return sheet
           + QStringLiteral(" QToolButton:checked{background-color:%1;}"
                            " QToolButton:checked:hover{background-color:%2;}")
                 .arg(colours->checked.name(), colours->checkedHover.name());
}
