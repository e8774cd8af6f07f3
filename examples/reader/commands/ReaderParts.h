// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Refusal.h"

#include <toolbar/MRToolBarCommands.h>

#include <functional>

class Document;
class HandwritingSettings;
class NavigationPanel;
class PageView;
class QMainWindow;
class QString;
class RecentFiles;
class SearchPanel;

/** The objects that commands use. The window owns them. */
struct ReaderParts
{
    QMainWindow *window = nullptr;
    Document *document = nullptr;
    PageView *view = nullptr;
    NavigationPanel *navigation = nullptr;
    SearchPanel *search = nullptr;
    HandwritingSettings *handwriting = nullptr;
    RecentFiles *recentFiles = nullptr;
    /** Focuses a control of the toolbar; returns false if it is not visible. */
    std::function<bool(const QString &name)> focusControl;
    /** Opens files where they belong: in this window or in others. */
    std::function<void(const QStringList &fileNames)> openFiles;
    /** Keeps the place in the document; called before that is left. */
    std::function<void()> keepPlace;
    /** Whether no other window of the reader is open. */
    std::function<bool()> isOnlyWindow;

    /** Adds what is usable while a document is open. */
    MRToolBarCommands::Command addForDocument(MRToolBarCommands &commands, const QString &name,
                                              const MRToolBarCommands::Run &run) const;
    MRToolBarCommands::Command addForDocument(MRToolBarCommands &commands, const QStringList &names,
                                              const MRToolBarCommands::RunNamed &run) const;

    /** The same for what the author of the document may forbid, which the tooltip then says. */
    MRToolBarCommands::Command addAllowed(Act act, MRToolBarCommands &commands,
                                          const QStringList &names,
                                          const MRToolBarCommands::RunNamed &run) const;

    /** Shows a line in the status bar for a while. */
    void say(const QString &message) const;
};
