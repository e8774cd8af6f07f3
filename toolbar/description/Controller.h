// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

/**
 * One element of a toolbar description: its tag, its attributes under their own names, the section
 * that it stands in, and its children.
 *
 * A record owns its children; DeleteUnitControl() frees whole trees.
 */
struct Controller
{
    QString type; ///< The tag; empty for an element without attributes that is no separator.
    QString text;
    QString name;   ///< From "name" or "action": documents carry one of the two.
    QString icon;   ///< Relative to the skin's directory of icons.
    QString arrow;  ///< "down" where a menu's arrow is described.
    QString layout; ///< Such as "top:icon;bottom:text,arrow".
    QString output;
    QString tooltip;    ///< The text, where the element has no tooltip of its own.
    QString prompt;     ///< The tooltip of a line edit, shown in the empty field.
    QString disabletip; ///< Tooltip of the control while it is unusable.
    QString group;      ///< Exclusive action group that the control belongs to.
    QString section;    ///< Tag of the section, at any depth below it.
    QString shortcut;
    qint32 index = 0;
    QString dropicon;
    bool checkable = false;
    bool checked = false;
    bool check = false;
    bool usable = true;
    bool available = true;
    bool visible = true;
    bool editable = false;
    bool switchable = false;
    bool withaction = false;
    bool scalable = false;
    bool doubleclick = false;
    QList<Controller *> children;
};
