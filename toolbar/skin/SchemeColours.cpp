// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/SchemeColours.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/Contrast.h"

namespace {

/** What is the same for every main colour. */
struct Greys
{
    QRgb strip, surface, raised, field;
    QRgb text, dimText, frame, divider;
    QRgb hover, pressed;
    double textContrast; ///< Of texts on what is checked; enough for icons, too, which are thinner.
    double iconContrast; ///< Of icons on any ground.
};

constexpr Greys darkGreys{0xff1f1f1f, 0xff2b2b2b, 0xff303030, 0xff1c1c1c, 0xfff2f2f2, 0xffa3a3a3,
                          0xff808080, 0xff4c4c4c, 0xff3f3f3f, 0xff4b4b4b, 6.0,        3.0};
constexpr Greys contrastGreys{0xff000000, 0xff000000, 0xff000000, 0xff000000,
                              0xffffffff, 0xffa0a0a0, 0xffffffff, 0xff8c8c8c,
                              0xff2a2a2a, 0xff383838, 10.4,       4.5};

/** Lines are thin: what is left of them between two pixels must be seen, too. */
constexpr double lineReserve = 1.5;

/** As much of the accent in the ground as text and icons bear, and no more than @p share. */
QColor tinted(const SchemeColours &colours, double share, double textContrast)
{
    constexpr double lessEachTime = 0.9;
    QColor tint = Contrast::mixed(colours.surface, colours.accent, share);
    while (Contrast::ratio(tint, colours.text) < textContrast
           || Contrast::ratio(tint, colours.accent) < colours.iconContrast) {
        share *= lessEachTime;
        tint = Contrast::mixed(colours.surface, colours.accent, share);
    }
    return tint;
}

struct Role
{
    QLatin1String name;
    QColor SchemeColours::*colour;
};

constexpr Role roles[] = {
    {latin1("[strip]"), &SchemeColours::strip},
    {latin1("[surface]"), &SchemeColours::surface},
    {latin1("[raised]"), &SchemeColours::raised},
    {latin1("[field]"), &SchemeColours::field},
    {latin1("[text]"), &SchemeColours::text},
    {latin1("[dimText]"), &SchemeColours::dimText},
    {latin1("[frame]"), &SchemeColours::frame},
    {latin1("[divider]"), &SchemeColours::divider},
    {latin1("[hover]"), &SchemeColours::hover},
    {latin1("[hoverFrame]"), &SchemeColours::hoverFrame},
    {latin1("[pressed]"), &SchemeColours::pressed},
    {latin1("[checked]"), &SchemeColours::checked},
    {latin1("[checkedHover]"), &SchemeColours::checkedHover},
    {latin1("[checkedFrame]"), &SchemeColours::checkedFrame},
    {latin1("[accent]"), &SchemeColours::accent},
    {latin1("[onAccent]"), &SchemeColours::onAccent},
    {latin1("[focus]"), &SchemeColours::focus},
};

QString sheetName(const QColor &colour)
{
    return colour.alpha() == 0 ? QStringLiteral("transparent") : colour.name();
}

} // namespace

SchemeColours schemeColours(const SchemeLook &look)
{
    const bool isContrast = look.scheme == Scheme::Contrast;
    const Greys &greys = isContrast ? contrastGreys : darkGreys;
    SchemeColours colours;
    colours.strip = greys.strip;
    colours.surface = greys.surface;
    colours.raised = greys.raised;
    colours.field = greys.field;
    colours.text = greys.text;
    colours.dimText = greys.dimText;
    colours.frame = greys.frame;
    colours.divider = greys.divider;
    colours.hover = greys.hover;
    colours.pressed = greys.pressed;
    colours.iconContrast = greys.iconContrast;

    colours.accent =
        Contrast::lightened(look.mainColour, greys.pressed, greys.iconContrast * lineReserve);
    colours.onAccent = Contrast::textOn(colours.accent);
    constexpr double distance = 1.25; // A light accent would make both as light as can be.
    colours.checked = tinted(colours, 0.24, greys.textContrast * distance);
    colours.checkedHover = tinted(colours, 0.36, greys.textContrast);
    colours.checkedFrame = isContrast ? colours.accent : colours.checkedHover;
    colours.hoverFrame = isContrast ? colours.text : QColor(Qt::transparent);
    colours.focus = isContrast ? colours.text : colours.accent;
    return colours;
}

SchemeColours stripColours(const SchemeLook &look)
{
    SchemeColours colours;
    colours.text = Qt::white;
    colours.accent = colours.text;
    colours.surface = QColor(look.mainColour);
    colours.pressed = colours.surface;
    colours.iconContrast = darkGreys.iconContrast;
    return colours;
}

QPalette schemePalette(const SchemeColours &colours)
{
    QPalette palette(colours.text, colours.raised, colours.hover, colours.strip, colours.divider,
                     colours.text, colours.field);
    palette.setColor(QPalette::Window, colours.surface);
    palette.setColor(QPalette::Button, colours.raised);
    palette.setColor(QPalette::Midlight, colours.pressed);
    palette.setColor(QPalette::AlternateBase, colours.raised);
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, colours.onAccent);
    palette.setColor(QPalette::Link, colours.accent);
    palette.setColor(QPalette::LinkVisited, colours.accent);
    palette.setColor(QPalette::ToolTipBase, colours.raised);
    palette.setColor(QPalette::ToolTipText, colours.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.dimText);
    return palette;
}

QString schemeSheet(QString sheet, const SchemeColours &colours)
{
    for (const Role &role : roles)
        sheet.replace(role.name, sheetName(colours.*role.colour));
    return sheet;
}
