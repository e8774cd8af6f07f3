// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/HoverSheets.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/SchemeColours.h"

namespace {

// The texts are kept to the letter, deliberately: a missing colon, a single colon, a stray "%" and
// a doubled brace are part of them, and the look of the buttons is what Qt makes of that. In
// brackets stand the roles of a scheme, and what the tables below have besides.

constexpr char rowArrowMarodi[] =
    "QToolButton::menu-button:hover{background-color:[pressed];border:2px solid [hover];"
    "border-left:2px solid [hover];border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton:menu-button:pressed{background-color:[pressed];} "
    "QToolButton{background-color:[hover];border:1px solid [hover];}";

constexpr char rowBodyMarodi[] =
    "QToolButton{background-color:[pressed];border 1px solid [hover];} "
    "QToolButton::menu-button:hover{"
    "background-color:[hover];border:2px solid [hover];border-left:2px solid [hover];"
    "border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton::menu-button:pressed{background-color:[pressed];}";

constexpr char rowArrowLum[] =
    "QToolButton{background-color:[surface];border:1px solid [hover];border-radius:3px;} "
    "QToolButton::menu-button{background-color:[hover];border:1px solid [hover];"
    "border-top-right-radius:3px;border-bottom-right-radius:3px;} "
    "QToolButton::menu-button:pressed{background-color:[pressed];border:none;"
    "%border-top-right-radius:3px;border-bottom-right-radius:3px;}";

constexpr char rowBodyLum[] =
    "QToolButton{background-color:[hover];border-radius:3px;} "
    "QToolButton:pressed{background-color:[pressed];} "
    "QToolButton:checked{background-color:[checked];} "
    "QToolButton::menu-button{background-color:[surface];border:1px solid [hover];"
    "border-top-right-radius:3px;border-bottom-right-radius:3px;}";

constexpr char menuArrowMarodi[] =
    "QToolButton::menu-button:hover{background-color:[pressed];border:2px solid [hover];"
    "border-left:2px solid [hover];border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton:menu-button:pressed{background-color:[pressed];} QToolButton::menu-arrow{"
    "image: url(:/mr_toolbar/Resources/marodi/[arrow].svg);"
    "subcontrol-position: right center;top:0.1em;} "
    "QToolButton{background-color:[hover];border:2px solid [hover];"
    "height:[height]em;padding-left:2px;}} "
    "QToolButton:pressed{background-color:[pressed];}";

constexpr char menuBodyMarodi[] =
    "QToolButton::menu-button:hover{background-color:[hover];border:2px solid [hover];"
    "border-left:2px solid [hover];border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton:menu-button:pressed{background-color:[hover];} QToolButton::menu-arrow{"
    "image: url(:/mr_toolbar/Resources/marodi/[arrow].svg);"
    "subcontrol-position: right center;top:0.1em;} "
    "QToolButton{background-color:[pressed];border:2px solid [hover];"
    "height:[height]em;padding-left:2px;}} "
    "QToolButton:pressed{background-color:[pressed];}";

constexpr char menuArrowLum[] =
    "QToolButton{padding-left:3px;background-color:[surface];border:1px solid [hover];"
    "border-radius:3px;} QToolButton::menu-button{background-color:[hover];border:none;} "
    "QToolButton::menu-button:pressed{background-color:[pressed];border:none;} "
    "QToolButton:checked{background-color:[checked];border:none;}";

constexpr char menuBodyLum[] =
    "QToolButton::menu-button:hover{background-color:[surface];} QToolButton::menu-indicator{"
    "image: url(:/mr_toolbar/Resources/lum/[arrow].svg);"
    " subcontrol-position: right center;} "
    "QToolButton{background-color:[hover];border:1px solid [hover];padding-left:3px;} "
    "QToolButton:pressed{background-color:[pressed];} "
    "QToolButton:checked{background-color:[checked];}";

constexpr char groupArrowMarodi[] =
    "QToolButton::menu-button:hover{background-color:[pressed];border:2px solid [hover];"
    "border-left:2px solid [hover];border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton{background-color:[hover];border:2px solid [hover];} "
    "QToolButton:pressed{background:[pressed];}";

constexpr char groupBodyMarodi[] =
    "QToolButton::menu-button:hover{background-color:[hover];border:2px solid [hover];"
    "border-left:2px solid [hover];border-top-right-radius:2px;border-bottom-right-radius:2px;} "
    "QToolButton{background:[pressed];border:2px solid [hover];}";

// What a scheme appends: what is checked can be told from both parts.
constexpr char checkedInScheme[] = " QToolButton:checked{background-color:[checked];}"
                                   " QToolButton:checked:hover{background-color:[checkedHover];}";

/** What a role is while there is no scheme. The colours do not come from the skin map. */
struct LightValue
{
    QLatin1String role;
    QLatin1String marodi;
    QLatin1String lum;
};

// In marodi the part under the pointer is "pressed", and the other one "hover".
constexpr LightValue lightValues[] = {
    {latin1("[surface]"), latin1(""), latin1("#ffffff")},
    {latin1("[hover]"), latin1("#EAEAEA"), latin1("rgb(219,222,227)")},
    {latin1("[pressed]"), latin1("#FFFFFF"), latin1("rgb(183,185,190)")},
    {latin1("[checked]"), latin1("#D3D3D3"), latin1("rgb(195,198,202)")},
};

constexpr QLatin1String arrow = latin1("[arrow]");
constexpr QLatin1String lightArrow = latin1("icons/icon19-22/arrowDown");
constexpr QLatin1String schemeArrow = latin1("dark/arrowDown");

QString inLight(QString sheet, bool isLum)
{
    for (const LightValue &value : lightValues)
        sheet.replace(value.role, isLum ? value.lum : value.marodi);
    return sheet.replace(arrow, lightArrow);
}

QString inScheme(QString sheet, const SchemeColours &colours)
{
    sheet.replace(arrow, schemeArrow);
    return schemeSheet(sheet + QLatin1String(checkedInScheme), colours);
}

QString menuTemplate(bool overArrow, bool isLum, double scale)
{
    if (isLum)
        return QString::fromLatin1(overArrow ? menuArrowLum : menuBodyLum);
    constexpr double heightInEms = 2.0;
    return QString::fromLatin1(overArrow ? menuArrowMarodi : menuBodyMarodi)
        .replace(QLatin1String("[height]"), QStringLiteral("%1").arg(heightInEms * scale));
}

/** Of a button on a tool row in the skin lum, drop button or group button. */
const char *lumRowTemplate(bool overArrow)
{
    return overArrow ? rowArrowLum : rowBodyLum;
}

} // namespace

QString HoverSheets::filled(const QString &sheet, bool isLum, const SchemeColours *colours)
{
    return colours ? inScheme(sheet, *colours) : inLight(sheet, isLum);
}

QString HoverSheets::dropButton(bool inExtendMenu, bool overArrow, bool isLum, double scale,
                                const SchemeColours *colours)
{
    if (inExtendMenu)
        return filled(menuTemplate(overArrow, isLum, scale), isLum, colours);
    const char *marodi = overArrow ? rowArrowMarodi : rowBodyMarodi;
    return filled(QString::fromLatin1(isLum ? lumRowTemplate(overArrow) : marodi), isLum, colours);
}

QString HoverSheets::groupButton(bool overArrow, bool isLum, const SchemeColours *colours)
{
    const char *marodi = overArrow ? groupArrowMarodi : groupBodyMarodi;
    return filled(QString::fromLatin1(isLum ? lumRowTemplate(overArrow) : marodi), isLum, colours);
}
