// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/NamedList.h"

#include <QString>

class Presentation;
class MRSearchBar;
class QAction;
class QActionGroup;
class QMenu;
class QPushButton;
class QWidget;
struct Controller;

/** Makes what controls of all kinds are made of, and finds what is there already. */
class ControlFactory
{
public:
    /**
     * @param owner        the toolbar, which owns what has no other parent
     * @param presentation what all controls of the toolbar are shown by
     */
    ControlFactory(QWidget *owner, NamedList<QAction> &actions, NamedList<QActionGroup> &groups,
                   Presentation &presentation);

    QWidget *owner() const { return m_owner; }
    Presentation &presentation() const { return m_presentation; }

    /** The first action of exactly that name, or null. */
    QAction *action(const QString &name) const;
    /** A new action with the text, the icon and the data of its description. */
    QAction *makeAction(const Controller &record, QObject *parent, bool isEnabled) const;
    /** Lets the action be found by its name. */
    void addAction(QAction *action);

    /** Makes the exclusive group of that name unless there is one or the name is empty. */
    void makeGroup(const QString &name, QObject *parent);
    /** Adds the action to the group of that name, if there is one; returns whether there is. */
    bool joinGroup(QAction *action, const QString &group) const;

    /** A flat button as they stand on the top line. */
    QPushButton *makeTopLineButton(const Controller &record, QWidget *parent) const;
    /** A menu that the sheets know as the toolbar's; entries of a row's menu begin as described. */
    QMenu *makeMenu(QWidget *parent, bool isRowMenu) const;

private:
    QWidget *m_owner;
    NamedList<QAction> &m_actions;
    NamedList<QActionGroup> &m_groups;
    Presentation &m_presentation;
};

/** Marks a menu as the toolbar's; the entries of a row's menu begin as they are described. */
void markMenu(QMenu *menu, bool isRowMenu);

/** Whether the entries of this menu begin as they are described, and not disabled. */
bool isRowMenu(const QMenu *menu);

/** Gives a search field the lengths inside it. */
void fitSearchBar(MRSearchBar *field, const Presentation &how);

/** Shows the title of a menu. */
void showTitle(QMenu *menu, const Controller &record, const Presentation &how);

/** Gives a widget or an action its tooltip. */
void showToolTip(QObject *control, const Controller &record, const Presentation &how);

/** The same where no described tooltip is shown, but one that is set by name. */
void showToolTipByName(QWidget *control, const Controller &record, const Presentation &how);

/** Gives a widget or an action the tooltip that it has while it is disabled. */
void showDisabledTip(QObject *control, const Controller &record, const Presentation &how);

/** Sees to it that such a tooltip is shown, if there is one in the description. */
void addDisabledTip(QObject *control, const Controller &record, Presentation &presentation);

/** Gives a control that is described without a text an accessible name. */
void nameWithoutText(QWidget *control, const Controller &record, const Presentation &how);
