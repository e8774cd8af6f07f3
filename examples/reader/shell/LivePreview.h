// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "shell/FileWatcher.h"
#include "shell/Options.h"

class FindingsPanel;
class ReaderWindow;

/**
 * Shows a description while it is being written: each time its file is saved, the toolbar is
 * rebuilt and the findings are listed. While the file cannot be read, the toolbar stays as it is.
 */
class LivePreview : public QObject
{
    Q_OBJECT

public:
    /** The toolbar and the findings are up to date when the constructor returns. */
    LivePreview(ReaderWindow &window, const Options &options);

private:
    void showFile(const QByteArray &content, const QString &fault);

    ReaderWindow &m_window;
    const Options m_options;
    FindingsPanel *m_panel; ///< Owned by the window.
    FileWatcher m_watcher;
};
