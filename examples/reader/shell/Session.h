// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class Document;
class NavigationPanel;
class PageView;
class QMainWindow;
class ReaderSettings;
class SearchPanel;

/**
 * Brings back what the last run was like: the window with its panels, and the page and the zoom of
 * each file.
 */
class Session
{
public:
    /** The objects that are brought back; they must live as long as the session. */
    struct Parts
    {
        QMainWindow &window;
        const Document &document;
        PageView &view;
        NavigationPanel &navigation;
        SearchPanel &search;
    };

    Session(const Parts &parts, ReaderSettings &settings);

    /** Does nothing from now on. */
    void turnOff() { m_isOn = false; }

    /** Before the window is shown. The system moves it onto a screen if it is on none. */
    void restoreWindow();
    void keepWindow();
    /** Panels are shown beside documents only: to be called when the first one was opened. */
    void restorePanels();
    /** The same when a document was closed and none is open. */
    void hidePanels();
    void restorePlace();
    void keepPlace();

private:
    void keepPanels();

    Parts m_parts;
    ReaderSettings &m_settings;
    bool m_isOn = true;
    bool m_hasPanels = false;
};
