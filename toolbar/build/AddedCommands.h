// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/CommandPlaces.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

class AddedCommand;
class ControlFactory;
class QAction;
class QMenu;
class QPushButton;
class QToolBar;

/**
 * The commands of rows that the user has added to the quick access bar, behind the described
 * buttons. Only whole names address them.
 */
class AddedCommands : public QObject
{
    Q_OBJECT

public:
    /** @param customiseButton with its menu */
    AddedCommands(const ControlFactory &factory, const QList<Controller *> &records, QToolBar *bar,
                  QPushButton *customiseButton);

    /** In their order on the bar. */
    QStringList names() const;
    /** Replaces them; names that no row has a command of are left out. */
    void set(const QStringList &names);

    /** Whether there is something to add or to remove: a command of a row. */
    bool isOffered(const QString &command) const;
    /** Whether the user sees it on the bar, added or described. */
    bool isOnBar(const QString &command) const;
    /** Adds it or removes it; a described button of the command is shown or hidden instead. */
    void toggle(const QString &command);

    /** A command has been made: an added one follows it. */
    void takeCommand(QAction *command);
    /** Sets a state of an added command whose row has not been made; it has no other yet. */
    void setWaiting(const QString &name, void (QAction::*state)(bool), bool isOn);

Q_SIGNALS:
    void changed(const QStringList &names);
    /** A command is to be triggered whose row has not been made. */
    void commandNeeded(const CommandPlace &place);

private:
    AddedCommand *added(const QString &name) const;
    QAction *describedEntry(const QString &command) const;
    void add(const QString &name);
    void remove(AddedCommand *command);
    void activate(AddedCommand *command);
    void uncheckGroupOf(const AddedCommand &command);
    void orderFocus(const QAction *button);
    void showBar();

    const ControlFactory &m_factory;
    const CommandPlaces m_places;
    QHash<QString, CommandPlace> m_ofRows; ///< By name, the first place on a row.
    QPointer<QToolBar> m_bar;
    QPointer<QPushButton> m_customiseButton;
    QList<AddedCommand *> m_added;
};
