// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/** Descriptions whose parts are in known lines, because findings name the line. */
namespace CheckDocuments {

/** A whole document; its sections begin in line 2. */
inline QByteArray document(const QByteArray &sections)
{
    return "<uiconfig prefix=\"\">\n" + sections + "\n</uiconfig>\n";
}

/** A document with one tab; its controls begin in line 3. */
inline QByteArray row(const QByteArray &controls, const QByteArray &tabAttributes = {})
{
    return document("<toolbar_tabbar><tabbutton name='tb' checkable='true' checked='true' "
                    + tabAttributes + ">\n" + controls + "\n</tabbutton></toolbar_tabbar>");
}

/** A document with an application menu; its entries begin in line 3. */
inline QByteArray menu(const QByteArray &entries)
{
    return document("<toolbar_appbutton><menu name='menu_file' text='File'>\n" + entries
                    + "\n</menu></toolbar_appbutton>");
}

} // namespace CheckDocuments
