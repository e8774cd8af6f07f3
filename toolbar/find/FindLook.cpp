// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/FindLook.h"

#include "toolbar/skin/Contrast.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/StyleSheet.h"

namespace {

// Complete, as the finder is not below the strip that has the sheet of the toolbar, but may be
// below one of the application.
constexpr char sheetTemplate[] =
    "QLineEdit{color:[text];background-color:[field];border:1px solid [frame];border-radius:4px;"
    "padding:0px 6px;margin:0px;min-height:30px;max-height:30px;selection-color:[onAccent];"
    "selection-background-color:[accent];}"
    "QLineEdit:focus{border:1px solid [focus];}"
    "QListView{color:[text];background-color:transparent;border:none;margin:0px;padding:0px;"
    "outline:none;}"
    "QLabel{color:[dimText];background-color:transparent;border:none;margin:0px;padding:0px;}"
    "QScrollBar:vertical{background-color:transparent;border:none;margin:0px;width:8px;}"
    "QScrollBar::handle:vertical{background-color:[frame];border:none;border-radius:3px;"
    "min-height:24px;margin:0px 1px 0px 1px;}"
    "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{border:none;height:0px;}"
    "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{background:transparent;}";

} // namespace

int FindLook::length(double designLength) const
{
    return ScreenDensity::scaled(designLength, scale);
}

QString FindLook::sheet() const
{
    return StyleSheet::scaled(schemeSheet(QString::fromLatin1(sheetTemplate), colours), scale);
}

SchemeColours lightFindColours(const QColor &accent)
{
    constexpr double currentTint = 0.12;
    SchemeColours colours;
    colours.raised = Qt::white;
    colours.field = Qt::white;
    colours.text = QColor(0x1f, 0x1f, 0x1f);
    colours.dimText = QColor(0x6a, 0x6a, 0x6a);
    colours.frame = QColor(0xc2, 0xc2, 0xc2);
    colours.divider = QColor(0xe4, 0xe4, 0xe4);
    colours.accent = accent;
    colours.onAccent = Contrast::textOn(accent);
    colours.focus = accent;
    colours.pressed = Contrast::mixed(Qt::white, accent, currentTint);
    return colours;
}
