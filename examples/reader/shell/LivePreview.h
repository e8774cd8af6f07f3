// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "shell/FileWatcher.h"
#include "shell/Options.h"

class FindingsPanel;
class ReaderWindow;

/**
 * Rebuilds the toolbar and lists the findings each time the file of a description is saved. While
 * the file cannot be read, the toolbar is not changed.
 */
class LivePreview : public QObject
{
    Q_OBJECT

public:
    /** Reads the file before it returns. */
    LivePreview(ReaderWindow &window, const Options &options);

    /** Loads the resources of a host as the checker does; returns why that is impossible. */
    static QString loadResources(const QStringList &paths);

private:
    void showFile(const QByteArray &content, const QString &fault);

    ReaderWindow &m_window;
    const Options m_options;
    FindingsPanel *m_panel; ///< Owned by the window.
    FileWatcher m_watcher;
};
