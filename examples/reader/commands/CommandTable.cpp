// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/CommandTable.h"

void CommandTable::add(const QStringList &names, Needs needs, const Run &run)
{
    for (const QString &name : names) {
        m_entries.insert(name, {needs, run});
        m_names.append(name);
    }
}

void CommandTable::addControl(const QStringList &names, Needs needs)
{
    add(names, needs, Run());
}

bool CommandTable::run(const QString &name) const
{
    const Entry entry = m_entries.value(name);
    if (!entry.run)
        return false;
    entry.run(name);
    return true;
}

bool CommandTable::isUsable(const QString &name, const ReaderState &state) const
{
    switch (m_entries.value(name).needs) {
    case Needs::Nothing:
        return true;
    case Needs::Document:
        return state.isOpen;
    case Needs::Changes:
        return state.isModified;
    case Needs::UndoStep:
        return state.canUndo;
    case Needs::RedoStep:
        return state.canRedo;
    case Needs::EarlierPage:
        return state.page > 1;
    case Needs::LaterPage:
        return state.page < state.pageCount;
    case Needs::Selection:
        return state.hasSelection;
    }
    return false;
}
