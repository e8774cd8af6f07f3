// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderState.h"

#include <QHash>
#include <QStringList>

#include <functional>

/** The condition under which a command is enabled. */
enum class Needs
{
    Nothing,
    Document,
    Changes,
    UndoStep,
    RedoStep,
    EarlierPage,
    LaterPage,
    Selection
};

/** The commands of the reader by the names that the toolbar reports. */
class CommandTable
{
public:
    /** The effect of a command; the name distinguishes commands that share a function. */
    using Run = std::function<void(const QString &name)>;

    void add(const QStringList &names, Needs needs, const Run &run);
    /** A control that is enabled and disabled here, but reported by a signal of its own. */
    void addControl(const QStringList &names, Needs needs);

    /** Runs the command of that name; returns false if there is none. */
    bool run(const QString &name) const;

    QStringList names() const { return m_names; }
    bool isUsable(const QString &name, const ReaderState &state) const;

private:
    struct Entry
    {
        Needs needs = Needs::Nothing;
        Run run;
    };

    QHash<QString, Entry> m_entries;
    QStringList m_names; ///< In the order in which they were added.
};
