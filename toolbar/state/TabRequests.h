// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>

/**
 * The tabs that have been asked for and those that are being left. Both run the host's code, which
 * may ask for other tabs meanwhile: the last request counts.
 */
class TabRequests
{
public:
    /** Asks for a tab, by its position, and returns the number of this request. */
    int ask(int tab)
    {
        m_tab = tab;
        m_isPending = true;
        return ++m_lastRequest;
    }
    /** The tab is on show by now, and earlier requests do not count any more. */
    void settle(int tab)
    {
        ask(tab);
        m_isPending = false;
    }
    /** Whether no tab has been asked for since that request. */
    bool isLast(int request) const { return request == m_lastRequest; }
    /** Whether the tab asked for last is still being opened. */
    bool isPending() const { return m_isPending; }
    int tab() const { return m_tab; }

    /** Returns whether the tab was not being left yet. */
    bool beginLeaving(int tab)
    {
        const bool isNew = !m_left.contains(tab);
        m_left.insert(tab);
        return isNew;
    }
    void endLeaving(int tab) { m_left.remove(tab); }
    bool isLeaving() const { return !m_left.isEmpty(); }

private:
    int m_tab = 0;
    int m_lastRequest = 0;
    bool m_isPending = false;
    QSet<int> m_left;
};
