#pragma once

#include <QString>

/** Pieces of descriptions, whose controls show their own names. */
namespace Describe {

inline QString section(const QString &name, const QString &controls)
{
    return QStringLiteral("<toolbar_%1>%2</toolbar_%1>").arg(name, controls);
}

inline QString button(const QString &name, const QString &more = {})
{
    return QStringLiteral("<button name='%1' text='%1' %2/>").arg(name, more);
}

inline QString item(const QString &name, const QString &more = {})
{
    return QStringLiteral("<menuitem action='%1' text='%1' %2/>").arg(name, more);
}

inline QString menu(const QString &name, const QString &entries, const QString &more = {})
{
    return QStringLiteral("<menu name='%1' text='%1' %3>%2</menu>").arg(name, entries, more);
}

inline QString tab(const QString &name, const QString &controls, const QString &more = {})
{
    return QStringLiteral("<tabbutton name='%1' text='%1' checkable='true' %3>%2</tabbutton>")
        .arg(name, controls, more);
}

/** A tab "row" on show with these controls, and others behind it. */
inline QString row(const QString &controls, const QString &otherTabs = {})
{
    return section("tabbar", tab("row", controls, "checked='true'") + otherTabs);
}

} // namespace Describe
