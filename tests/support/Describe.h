// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** Fragments of descriptions. Buttons, entries and tabs have their names as texts. */
namespace Describe {

inline QString section(const QString &name, const QString &controls)
{
    return QStringLiteral("<toolbar_%1>%2</toolbar_%1>").arg(name, controls);
}

inline QString button(const QString &name, const QString &more = {})
{
    return QStringLiteral("<button name='%1' text='%1' %2/>").arg(name, more);
}

/** A button with a menu of these entries, such as that of the search options. */
inline QString optionsButton(const QString &name, const QString &entries)
{
    return QStringLiteral("<button name='%1' text='%1'>%2</button>").arg(name, entries);
}

inline QString item(const QString &name, const QString &more = {})
{
    return QStringLiteral("<menuitem action='%1' text='%1' %2/>").arg(name, more);
}

inline QString menu(const QString &name, const QString &entries, const QString &more = {})
{
    return QStringLiteral("<menu name='%1' text='%1' %3>%2</menu>").arg(name, entries, more);
}

inline QString label(const QString &name, const QString &text)
{
    return QStringLiteral("<label name='%1' text='%2'/>").arg(name, text);
}

inline QString field(const QString &name, const QString &more = {})
{
    return QStringLiteral("<lineedit name='%1' %2/>").arg(name, more);
}

inline QString searchField(const QString &name, const QString &buttons, const QString &more = {})
{
    return QStringLiteral("<lineedit name='%1' %3>%2</lineedit>").arg(name, buttons, more);
}

inline QString comboBox(const QString &name, const QString &choices, const QString &more = {})
{
    return QStringLiteral("<combobox name='%1' %3>%2</combobox>").arg(name, choices, more);
}

/** An entry of a combo box. */
inline QString choice(const QString &name, const QString &text)
{
    return QStringLiteral("<item action='%1' text='%2'/>").arg(name, text);
}

inline QString group(const QString &name, const QString &controls)
{
    return QStringLiteral("<buttongroup name='%1'>%2</buttongroup>").arg(name, controls);
}

/** The extra group at the right end of a row, which only scalable tabs have. */
inline QString extra(const QString &controls)
{
    return QStringLiteral("<extra usable='true'>%1</extra>").arg(controls);
}

inline QString tab(const QString &name, const QString &controls, const QString &more = {})
{
    return QStringLiteral("<tabbutton name='%1' text='%1' checkable='true' %3>%2</tabbutton>")
        .arg(name, controls, more);
}

/** A tab "row" on show with these controls, and further tabs after it. */
inline QString row(const QString &controls, const QString &otherTabs = {})
{
    return section("tabbar", tab("row", controls, "checked='true'") + otherTabs);
}

/** Every kind of control in every area; of the tabs "first" is on show. */
inline QString everything()
{
    const QString checkable = "checkable='true' ";
    const QString drops =
        menu("d_drop", item("d_a", checkable) + item("d_b") + menu("d_more", item("d_two")),
             checkable + "switchable='true' index='1'")
        + menu("d_plain", item("d_c") + menu("d_inner", item("d_d")));
    const QString groups =
        group("g", button("g_one") + menu("g_menu", item("g_a"), checkable + "index='1'")
                       + button("g_two", checkable + "group='gg'"));
    const QString fields =
        comboBox("v_zoom", choice("vzmode_50p", "50%") + choice("vzmode_100p", "100%"),
                 "index='1' editable='true'")
        + field("d_gotopage", "text='Page'") + label("d_totalpagelabel", "/");
    const QString firstRow = button("one", checkable) + "<sperator/>"
                             + button("two", checkable + "group='g2'")
                             + button("slow", "doubleclick='true'") + drops + groups + fields;
    const QString search = searchField("gis_input", button("gis_prev") + button("gis_next"));
    const QString recent = menu("f_openrecent", item("no_file") + item("f_clearhistory"));
    return section("appbutton", menu("menu_file", item("f_open") + item("one")
                                                      + menu("menu_more", item("f_more")) + recent)
                                    + menu("set", item("s_one") + menu("menu_view", item("v_a"))))
           + section("quickaccessbar", button("qbar_f_open", checkable)
                                           + button("qbar_f_print", checkable) + button("qt_set"))
           + section("tabbar",
                     tab("first", firstRow, "checked='true'")
                         + tab("second", button("one") + button("three"))
                         + tab("third", button("four") + extra(search), "scalable='true'"))
           + section("searchbar", label("s_label", "Search") + field("st_input") + button("st_prev")
                                      + button("st_next")
                                      + optionsButton("st_set", item("st_wholeword", checkable)))
           + section("addtional", button("h_help") + button("t_fold"));
}

} // namespace Describe
