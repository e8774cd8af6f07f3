// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QString>

struct Controller;

/** The command that a name with "menu_" or "qbar_" before it stands for, or else the name. */
QString commandOf(const QString &name);

/** Where a command of a description stands, whether it has been made yet or not. */
struct CommandPlace
{
    const Controller *record;
    const Controller *holder; ///< What it stands in: a tab, a group, a menu; null on the top line.
    const Controller *tab;    ///< The tab that it stands on; null elsewhere than on a row.
};

/**
 * Every command of a description: the buttons of rows and their groups, the entries of all menus
 * but that of the search options, the buttons of the quick access bar and the additional ones. The
 * records must outlive the object.
 */
class CommandPlaces
{
public:
    explicit CommandPlaces(const QList<Controller *> &records);

    /** The menus first, then the top line, then the rows; a command once for each place. */
    const QList<CommandPlace> &all() const { return m_places; }
    /** From the tab or the application button down to what the command stands in. */
    QList<const Controller *> way(const CommandPlace &place) const;

private:
    void add(const QList<Controller *> &records, const Controller *holder, const Controller *tab);

    QList<CommandPlace> m_places;
    QHash<const Controller *, const Controller *> m_holders; ///< Of what holds commands.
};
