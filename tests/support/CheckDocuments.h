// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/** Descriptions whose parts stand in known lines, as the findings of the check name them. */
namespace CheckDocuments {

/** The sections begin in line 2. */
inline QByteArray document(const QByteArray &sections)
{
    return "<uiconfig prefix=\"\">\n" + sections + "\n</uiconfig>\n";
}

/** The controls stand in line 3. */
inline QByteArray row(const QByteArray &controls, const QByteArray &tabAttributes = {})
{
    return document("<toolbar_tabbar><tabbutton name='tb' checkable='true' checked='true' "
                    + tabAttributes + ">\n" + controls + "\n</tabbutton></toolbar_tabbar>");
}

/** The entries stand in line 3. */
inline QByteArray menu(const QByteArray &entries)
{
    return document("<toolbar_appbutton><menu name='menu_file' text='File'>\n" + entries
                    + "\n</menu></toolbar_appbutton>");
}

inline constexpr char scalable[] = "scalable='true'";

} // namespace CheckDocuments
