// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/Latin1.h"

/**
 * @file
 * Every name that the library gives a meaning of its own, in a description, in a call by name or in
 * a style sheet. A name that is not here means only what the host makes of it.
 */

/** The sections of a description. In calls by name they are areas, too. */
namespace Section {
inline constexpr QLatin1String appButton = latin1("toolbar_appbutton");
inline constexpr QLatin1String quickAccessBar = latin1("toolbar_quickaccessbar");
inline constexpr QLatin1String tabBar = latin1("toolbar_tabbar");
inline constexpr QLatin1String searchBar = latin1("toolbar_searchbar");
inline constexpr QLatin1String additional = latin1("toolbar_addtional"); ///< The format's spelling.
} // namespace Section

/** Areas that are no sections. */
namespace Area {
inline constexpr QLatin1String prefix = latin1("toolbar_"); ///< A name with it is no control.
inline constexpr QLatin1String whole = latin1("toolbar_whole");
inline constexpr QLatin1String topLine = latin1("toolbar_toptoolbar");
inline constexpr QLatin1String rows = latin1("toolbar_maintoolbar");
inline constexpr QLatin1String quickAccessSet = latin1("set"); ///< After "toolbar_quickaccessbar/".
} // namespace Area

/** The elements of a description. */
namespace Tag {
inline constexpr QLatin1String root = latin1("uiconfig");
inline constexpr QLatin1String separator = latin1("sperator"); ///< The format's spelling.
inline constexpr QLatin1String button = latin1("button");
inline constexpr QLatin1String buttonGroup = latin1("buttongroup"); ///< A panel of two lines.
inline constexpr QLatin1String menu = latin1("menu");
inline constexpr QLatin1String comboBox = latin1("combobox");
inline constexpr QLatin1String label = latin1("label");
inline constexpr QLatin1String lineEdit = latin1("lineedit");
inline constexpr QLatin1String extra = latin1("extra"); ///< A panel at the end of a row.
} // namespace Tag

/** Names of single controls. */
namespace Name {
inline constexpr QLatin1String setButton = latin1("ab_set"); ///< Beside the application button.
inline constexpr QLatin1String customise = latin1("qt_set"); ///< Customises the quick access bar.
inline constexpr QLatin1String customiseTitle = latin1("qt_set_title"); ///< First in its menu.
inline constexpr QLatin1String recentFiles = latin1("f_openrecent");    ///< Sub-menu of files.
inline constexpr QLatin1String recentFile = latin1("f_openrecentfile"); ///< An entry for a file.
inline constexpr QLatin1String noFile = latin1("no_file");              ///< Shown without files.
inline constexpr QLatin1String clearHistory = latin1("f_clearhistory"); ///< Clears the sub-menu.
inline constexpr QLatin1String fold = latin1("t_fold");                 ///< Hides the rows.
inline constexpr QLatin1String unfold = latin1("t_extend"); ///< Shows them again; never described.
inline constexpr QLatin1String preferences = latin1("e_preference");  ///< The sheets know it.
inline constexpr QLatin1String findCommand = latin1("t_findcommand"); ///< Opens the finder.
inline constexpr QLatin1String rowMore = latin1("row_more"); ///< Opens what a row has moved.
inline constexpr QLatin1String zoomBox = latin1("v_zoom");   ///< The zoom box, however described.
inline constexpr QLatin1String zoomList = latin1("v_zoomlist");       ///< Shown and hidden with it.
inline constexpr QLatin1String pageField = latin1("d_gotopage");      ///< The page field, likewise.
inline constexpr QLatin1String pageInput = latin1("d_gotopageinput"); ///< Goes with it.
inline constexpr QLatin1String totalPageLabel = latin1("d_totalpagelabel"); ///< Number of pages.
inline constexpr QLatin1String shapes = latin1("tp_shape"); ///< Released by other checks by name.
inline constexpr QLatin1String watermark =
    latin1("tw_watermark_add"); ///< Which is not one of them.
inline constexpr QLatin1String actualSize = latin1("vzmode_original"); ///< Stands for 100 percent.
inline constexpr QLatin1String customZoom = latin1("vzmode_custom"); ///< For any other percentage.
inline constexpr QLatin1String singlePage = latin1("vpmode_singlepage"); ///< Ends the flow mode.
inline constexpr QLatin1String doublePage = latin1("vpmode_doublepage"); ///< So does this.
inline constexpr QLatin1String flowMode = latin1("vmode_flow");
inline constexpr QLatin1String background = latin1("background_default");
inline constexpr QLatin1String backgroundDay = latin1("background_daytime");
inline constexpr QLatin1String backgroundNight = latin1("background_nighttime");
inline constexpr QLatin1String backgroundEyeCare = latin1("background_eyeguard");
inline constexpr QLatin1String backgroundParchment = latin1("background_parchment");
} // namespace Name

/** Words within a name that decide what the control does. */
namespace Word {
inline constexpr QLatin1String background = latin1("background"); ///< Chooses a page background.
inline constexpr QLatin1String zoom = latin1("zoom");             ///< Makes a list the zoom box.
inline constexpr QLatin1String goToPage = latin1("gotopage");     ///< Makes a field the page field.
inline constexpr QLatin1String extraSearch = latin1("gis");       ///< Searches from an extra group.
inline constexpr QLatin1String searchInput = latin1("input");     ///< Return in it searches.
inline constexpr QLatin1String next = latin1("next");
inline constexpr QLatin1String previous = latin1("prev");
inline constexpr QLatin1String wholeWord = latin1("wholeword");
inline constexpr QLatin1String noCase = latin1("nocase");
inline constexpr QLatin1String searchSet = latin1("st_set");   ///< Opens the options of the search.
inline constexpr QLatin1String fold = latin1("fold");          ///< Hides the rows.
inline constexpr QLatin1String unfold = latin1("extend");      ///< Shows the rows.
inline constexpr QLatin1String windowScope = latin1("window"); ///< A shortcut acts in all of it.
} // namespace Word

/** Attributes of the root. */
namespace RootAttribute {
inline constexpr QLatin1String prefix = latin1("prefix"); ///< Without it there is no description.
inline constexpr QLatin1String shortcutScope = latin1("shortcutscope"); ///< Of all its commands.
} // namespace RootAttribute

/** What names begin with. */
namespace Prefix {
inline constexpr QLatin1String menu = latin1("menu_"); ///< A menu's way to the command after it.
inline constexpr QLatin1String quick = latin1("qbar_");
inline constexpr QLatin1String quickFile = latin1("qbar_f_");
inline constexpr QLatin1String quickEdit = latin1("qbar_e_");
inline constexpr QLatin1String zoomMode = latin1("vzmode_");
inline constexpr QLatin1String shape = latin1("tp_");   ///< Tools that leave "tp_shape" checked.
inline constexpr QLatin1String resource = latin1(":/"); ///< Of an icon: the host's, for any skin.
inline constexpr QLatin1String themeIcon = latin1("theme:"); ///< Of an icon: the desktop's.
} // namespace Prefix

/** Exclusive groups of actions. */
namespace Group {
inline constexpr QLatin1String annotation = latin1("annotgroup"); ///< Releases other drop buttons.
inline constexpr QLatin1String zoom = latin1("zmode");            ///< Shows the zoom reported.
} // namespace Group

/** Keys of the skin map that are no colours. */
namespace SkinKey {
inline constexpr QLatin1String externalSheet =
    latin1("externalqss"); ///< The host applies the sheet.
inline constexpr QLatin1String quickAccess = latin1("quickaccessbarbuttons");
inline constexpr QLatin1String scheme = latin1("scheme");     ///< Light, dark, or as the system is.
inline constexpr QLatin1String scale = latin1("scalefactor"); ///< A number, or "screen".
inline constexpr QLatin1String touch = latin1("touchmode");   ///< "true": for fingers.
inline constexpr QLatin1String applicationFont = latin1("fontfromapplication"); ///< "true".
inline constexpr QLatin1String toolTipWords =
    latin1("tooltipwords"); ///< "true": lines of tooltip cards end between words.
inline constexpr QLatin1String keyTips = latin1("keytips"); ///< "true": Alt shows letters.
inline constexpr QLatin1String toolBarState =
    latin1("toolbarstate"); ///< What GetToolBarState() has returned.

/** Those that are taken out of the map before anything else sees it. */
inline constexpr QLatin1String options[] = {scheme,       scale,   touch,       applicationFont,
                                            toolTipWords, keyTips, toolBarState};
} // namespace SkinKey

/** Dynamic properties, most of which the style sheets select by. */
namespace Property {
inline constexpr char inToolBar[] = "intoolbar"; ///< "true": belongs to the toolbar.
inline constexpr char module[] = "module";       ///< Kind of the control; see Module.
inline constexpr char position[] = "position";   ///< "toolbar" or "toolbarextend", of drop buttons.
inline constexpr char rowMenu[] = "toolbar";     ///< "true": entries begin as they are described.
inline constexpr char tabIndex[] = "tabindex";   ///< Position of a tab, as a decimal text.
inline constexpr char usable[] = "usable";       ///< "true": a group button follows the host.
inline constexpr char loaded[] = "loaded";       ///< "false" on the application button.
inline constexpr char added[] = "quickadded"; ///< The command that the user added to quick access.
} // namespace Property

/** Values of the property "module". */
namespace Module {
inline constexpr char tabButton[] = "tabbutton";
inline constexpr char toolRow[] = "maintoolbar";
inline constexpr char groupButton[] = "groupbutton";
inline constexpr char plainGroupButton[] = "groupbutton_withouttext";
inline constexpr char button[] = "toolbarbutton";
inline constexpr char input[] = "toolbarinput";
inline constexpr char menu[] = "toolbarmenu";
inline constexpr char searchButton[] = "searchbutton";
} // namespace Module

/** Object names of what is not described; style sheets and hosts address these widgets by them. */
namespace Part {
inline constexpr QLatin1String strip = latin1("mrtoolbar"); ///< The tool bar in the main window.
inline constexpr QLatin1String topLine = latin1("top_widget");
inline constexpr QLatin1String topSeparator = latin1("vseparator");
inline constexpr QLatin1String rowStack = latin1("tabwidget");
inline constexpr QLatin1String rowPage = latin1("tabWidget"); ///< Each page of the stack.
inline constexpr QLatin1String groupPanel = latin1("groupwidget");
inline constexpr QLatin1String caption = latin1("prompt");      ///< Below a field or list of a row.
inline constexpr QLatin1String keyTips = latin1("keytiplayer"); ///< Has the focus meanwhile.
inline constexpr QLatin1String finder = latin1("findcommand");  ///< The field with its list.
inline constexpr QLatin1String finderField = latin1("findcommand_input");
inline constexpr QLatin1String finderList = latin1("findcommand_list");
inline constexpr QLatin1String quickAccessOffer = latin1("quickaccess_offer"); ///< Adds or removes.
inline constexpr QLatin1String overflowButton = latin1("qt_toolbar_ext_button"); ///< Qt's own.
} // namespace Part
