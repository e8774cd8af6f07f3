// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderState.h"

#include <QHash>
#include <QStringList>

#include <functional>

/** What must be the case for a command to be of use. */
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

/** The commands of the reader, by the object names under which the toolbar reports them. */
class CommandTable
{
public:
    /** What a command does; the name tells which of several commands was meant. */
    using Run = std::function<void(const QString &name)>;

    void add(const QStringList &names, Needs needs, const Run &run);
    /** A control that is enabled and disabled, but whose effect arrives by another signal. */
    void addControl(const QStringList &names, Needs needs);

    /** Returns false for a name without a command. */
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
