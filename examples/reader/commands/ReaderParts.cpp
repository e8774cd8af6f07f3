// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/ReaderParts.h"

#include "document/Document.h"

#include <QMainWindow>
#include <QStatusBar>

namespace {

constexpr int messageTime = 6000;

} // namespace

MRToolBarCommands::Command ReaderParts::addForDocument(MRToolBarCommands &commands,
                                                       const QString &name,
                                                       const MRToolBarCommands::Run &run) const
{
    return commands.add(name, run).usableWhen([open = document] { return open->isOpen(); });
}

MRToolBarCommands::Command ReaderParts::addForDocument(MRToolBarCommands &commands,
                                                       const QStringList &names,
                                                       const MRToolBarCommands::RunNamed &run) const
{
    return commands.add(names, run).usableWhen([open = document] { return open->isOpen(); });
}

MRToolBarCommands::Command ReaderParts::addAllowed(Act act, MRToolBarCommands &commands,
                                                   const QStringList &names,
                                                   const MRToolBarCommands::RunNamed &run) const
{
    auto added = commands.add(names, run);
    added.usableWhen(
        [open = document, act] { return open->isOpen() && open->refusalOf(act).isEmpty(); });
    added.withToolTip(
        [open = document, act] { return open->isOpen() ? open->refusalOf(act) : QString(); });
    return added;
}

void ReaderParts::say(const QString &message) const
{
    window->statusBar()->showMessage(message, messageTime);
}
