// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"
#include "pages/PageLayout.h"

#include <QCoreApplication>

class MRToolBarCommands;
class QString;

/** The commands for pages, zoom, layout, panels and search. */
class ViewCommands
{
    Q_DECLARE_TR_FUNCTIONS(ViewCommands)

public:
    explicit ViewCommands(const ReaderParts &parts);

    void addTo(MRToolBarCommands &commands);

    void stepZoom(bool larger);
    void toggleFullScreen();

private:
    void addPages(MRToolBarCommands &commands);
    void addZoom(MRToolBarCommands &commands);
    void addLayouts(MRToolBarCommands &commands);
    void addPanels(MRToolBarCommands &commands);
    void turnPages(int direction);
    void showRevisions();
    void showInk() const;
    void findInToolBar();

    ReaderParts m_parts;
};
