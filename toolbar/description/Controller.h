// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QSharedDataPointer>
#include <QString>

/** Attributes for what a description asks for beyond the usual; most elements have none of them. */
struct OptInAttributes : public QSharedData
{
    QString keywords;      ///< Other words that the command is found by.
    QString keytip;        ///< Letters that lead to the control while key tips are shown.
    QString shortcutscope; ///< "window": the shortcut acts in the whole window.
    QString context;       ///< Of a tab that the host shows while something is selected.
    QString contextcolour; ///< What such a tab is tinted with, as "#RRGGBB".
    qint32 shrink = 0;     ///< 1 to 9: how soon the control gives way in a narrow row; 0: never.
    bool peek = false; ///< While the rows are folded, a click on a tab lays its row over the page.
    bool quickadd = false; ///< Commands of rows can be added to the quick access bar.
};

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
    QString dropicon;
    qint32 index = 0;
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

    const OptInAttributes &optIn() const;
    /** The same for writing; only now the record takes room for them. */
    OptInAttributes &changedOptIn();

private:
    QSharedDataPointer<OptInAttributes> m_optIn;
};
