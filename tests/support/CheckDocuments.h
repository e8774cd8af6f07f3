// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/DescriptionCheck.h"
#include "tools/check/Report.h"

#include <QByteArray>
#include <QStringList>

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

inline QByteArray whole(const QByteArray &text)
{
    return text;
}

inline QByteArray tools(const QByteArray &controls)
{
    return row(controls);
}

inline QByteArray extra(const QByteArray &controls)
{
    return row("<extra usable='true'>" + controls + "</extra>", "scalable='true'");
}

inline QByteArray additional(const QByteArray &buttons)
{
    return document("<toolbar_addtional>\n" + buttons + "</toolbar_addtional>");
}

inline QByteArray quick(const QByteArray &buttons)
{
    return document("<toolbar_quickaccessbar>\n" + buttons + "</toolbar_quickaccessbar>");
}

inline QByteArray search(const QByteArray &buttons)
{
    return document("<toolbar_searchbar>\n" + buttons + "</toolbar_searchbar>");
}

/** A fragment with a fault, and the expected severity, rule and line; none for no fault. */
struct Fault
{
    QByteArray (*place)(const QByteArray &);
    const char *finding;
    const char *text;
};

inline QStringList summary(const QVector<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(QStringLiteral("%1 %2 %3")
                         .arg(Report::severityName(finding.severity), finding.id,
                              QString::number(finding.line)));
    return lines;
}

inline QString reported(const Fault &fault)
{
    return QString::fromUtf8(fault.text)
           + summary(checkDescription(fault.place(fault.text))).join(QLatin1Char('\n'));
}

inline QString expected(const Fault &fault)
{
    return QString::fromUtf8(fault.text) + QString::fromUtf8(fault.finding);
}

inline constexpr char scalable[] = "scalable='true'";

} // namespace CheckDocuments
