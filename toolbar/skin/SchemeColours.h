// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/skin/Scheme.h"

#include <QColor>
#include <QPalette>

/** The colours of a dark scheme, by what they are for. */
struct SchemeColours
{
    QColor strip;            ///< The line of the tabs, where it is not as light as the rows.
    QColor surface;          ///< Tool rows and dialogs.
    QColor raised;           ///< Menus, lists and tooltips.
    QColor field;            ///< What is typed into.
    QColor text;             ///< Read on any of these and on the states.
    QColor dimText;          ///< The same while it is disabled.
    QColor frame;            ///< Around fields and menus.
    QColor divider;          ///< Between groups of controls.
    QColor hover;            ///< Ground of what the pointer is over.
    QColor hoverFrame;       ///< Around it; transparent where the ground says enough.
    QColor pressed;          ///< Ground of what is pressed, and of the selected entry of a menu.
    QColor checked;          ///< Ground of what is switched on.
    QColor checkedHover;     ///< The same under the pointer.
    QColor checkedFrame;     ///< Around what is switched on.
    QColor accent;           ///< The main colour, as light as icons must be.
    QColor onAccent;         ///< Text on the accent.
    QColor focus;            ///< Around what the keyboard goes to.
    double iconContrast = 1; ///< What icons and frames reach on every ground.
};

/** The colours of a look that is not light; its own main colour gives the accent. */
SchemeColours schemeColours(const SchemeLook &look);

/** What drawings are given on a strip of the look's main colour: light lines on that ground. */
SchemeColours stripColours(const SchemeLook &look);

/** The same for widgets that are dressed by a palette. */
QPalette schemePalette(const SchemeColours &colours);

/** A style sheet with every role in brackets, such as "[surface]", replaced by its colour. */
QString schemeSheet(QString sheet, const SchemeColours &colours);
