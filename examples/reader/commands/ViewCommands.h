// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"
#include "pages/PageLayout.h"

#include <QCoreApplication>

class CommandTable;
class QString;

/** The commands for pages, zoom, layout, panels and search. */
class ViewCommands
{
    Q_DECLARE_TR_FUNCTIONS(ViewCommands)

public:
    explicit ViewCommands(const ReaderParts &parts);

    void addTo(CommandTable &table);

    void stepZoom(bool larger);
    void toggleFullScreen();

    /** The object name of the control for a layout. */
    static QString nameOf(LayoutMode mode);

private:
    void addPages(CommandTable &table);
    void addZoom(CommandTable &table);
    void addLayouts(CommandTable &table);
    void addPanels(CommandTable &table);
    void turnPages(int direction);
    void showRevisions();
    void showInk() const;
    void findInToolBar();

    ReaderParts m_parts;
};
