// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Session.h"

#include "document/Document.h"
#include "pages/PageView.h"
#include "panels/NavigationPanel.h"
#include "panels/SearchPanel.h"
#include "shell/ReaderSettings.h"

#include <QMainWindow>

Session::Session(const Parts &parts, ReaderSettings &settings)
    : m_parts(parts)
    , m_settings(settings)
{
}

void Session::restoreWindow()
{
    if (!m_isOn)
        return;
    m_parts.view.setLayoutMode(m_settings.layoutMode());
    if (!m_parts.window.restoreGeometry(m_settings.geometry()))
        return;
    // Whoever left the reader in full screen does not expect the next document there.
    m_parts.window.setWindowState(m_parts.window.windowState() & ~Qt::WindowFullScreen);
}

void Session::keepWindow()
{
    if (!m_isOn)
        return;
    m_settings.setGeometry(m_parts.window.saveGeometry());
    m_settings.setLayoutMode(m_parts.view.layoutMode());
    keepPanels();
}

void Session::keepPanels()
{
    if (m_isOn && m_hasPanels)
        m_settings.setPanels(m_parts.window.saveState(), m_parts.navigation.shownPanel());
}

void Session::restorePanels()
{
    if (m_hasPanels)
        return;
    m_hasPanels = true;
    if (!m_isOn || !m_parts.window.restoreState(m_settings.docks()))
        return;
    // Of this dock only the size comes back with the state, not what it shows.
    m_parts.navigation.hide();
    if (NavigationPanel::names().contains(m_settings.panel()))
        m_parts.navigation.toggle(m_settings.panel());
}

void Session::hidePanels()
{
    keepPanels();
    m_hasPanels = false;
    m_parts.navigation.hide();
    m_parts.search.hide();
}

void Session::restorePlace()
{
    if (!m_isOn)
        return;
    const ReadingPlace place = m_settings.place(m_parts.document.fileName());
    const ZoomMode zoom = ZoomMode::fromName(place.zoom);
    if (!zoom.isValid())
        return;
    m_parts.view.setZoomMode(zoom);
    m_parts.view.setCurrentPage(place.page);
}

void Session::keepPlace()
{
    if (m_isOn && m_parts.document.isOpen() && !m_parts.document.isGenerated())
        m_settings.setPlace(m_parts.document.fileName(),
                            {m_parts.view.currentPage(), m_parts.view.zoomMode().name()});
}
