// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QMetaType>
#include <QString>

/**
 * @file
 * The values that cross the boundary between the library and its host.
 *
 * The library registers them with the meta-type system under the names used in signatures
 * (`SearchOption`, `BackgroundStyle`, `ToolBarSkinStyle`) when the first MRToolBar is constructed,
 * so that they can be carried by queued connections and by QSignalSpy.
 */

/** Where the controls of a tool row stand within the width of the window. */
enum ToolBarAlignment : int
{
    ToolBarLeft = 0,
    ToolBarCenter = 1, ///< Centred in both directions; any value outside the enumeration, too.
    ToolBarRight = 2
};

/** How the host paints the ground of its pages. Values outside it stand for the default. */
enum BackgroundStyle : int
{
    Background_Default = 0,   ///< control "background_default"
    Background_Daytime = 1,   ///< control "background_daytime"
    Background_Nighttime = 2, ///< control "background_nighttime"
    Background_Eyeguard = 3,  ///< control "background_eyeguard"
    Background_Parchment = 4  ///< control "background_parchment"
};

/** What the user asks the host to search for. */
struct SearchContentOption
{
    QString content;        ///< The text to find; never empty in an emitted signal.
    qint32 direction = 1;   ///< 0 backwards, 1 forwards.
    bool wholeWord = false; ///< State of the option whose name contains "wholeword".
    bool noCase = false;    ///< State of the option whose name contains "nocase".
    bool newSearch = false; ///< True when the search comes from the second search field.
};

/** The name under which SearchContentOption stands in signatures. */
typedef SearchContentOption SearchOption;

/**
 * Settings of a skin: colour placeholders such as "[MainColor]", and keys of behaviour.
 *
 * "externalqss" (any value) leaves applying the style sheet to the host, "quickaccessbarbuttons" is
 * the setting that MRToolBar::GetQuickAccessButtonList() returned; both count at construction.
 *
 * "scheme" makes the toolbar "light", "dark" or of high "contrast", or, with "system", light or
 * dark as the application's palette is; without it a toolbar is light. It is no colour: a map that
 * holds nothing else is an empty one, and a map without it, or with another value, keeps the
 * scheme.
 *
 * "scalefactor" is what lengths at 96 dpi are multiplied by: a number from 0.5 to 4, or "screen"
 * for the density of the screen that the window is on, in units of the application's own scaling.
 * It is no colour either, and a map without it, or with another value, keeps the scale; without any
 * that is the physical density of the screen at construction.
 *
 * "touchmode" and "fontfromapplication" are "true" or "false" and no colours either. The first
 * makes no button and no entry of a menu smaller than 9 mm; the second gives the texts the
 * application's font and size, and widths and lengths that follow.
 *
 * "tooltipwords" as "true" ends the lines of tooltip cards between words, and not, as "false",
 * after ten characters. A map without it, or with another value, keeps what there is.
 *
 * "keytips" as "true" has Alt and F10 show the letters that lead to the controls, and as "false"
 * not any more. A map without it, or with another value, keeps what there is.
 * "toolbarstate" is what MRToolBar::GetToolBarState() returned, no colour either. At construction
 * the toolbar begins with it, later it is restored. "scalefactor" and "scheme" beside it in the map
 * count more than those in it, and so do "quickaccessbarbuttons" at construction. A state of
 * another version or for another description is taken as far as it fits, and any other text
 * ignored.
 */
typedef QMap<QString, QString> ToolBarSkinStyle;

Q_DECLARE_METATYPE(SearchOption)
Q_DECLARE_METATYPE(BackgroundStyle)
