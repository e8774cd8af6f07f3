// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/CommandTable.h"
#include "commands/ReaderState.h"

class MRToolBar;

/** Reports the state of the reader to the toolbar. */
class ToolBarReport
{
public:
    ToolBarReport(MRToolBar &toolBar, const CommandTable &commands);

    /** Reports everything, after new controls were created. */
    void tellAll(const ReaderState &state);
    /** Reports the states again; the contents of fields only if they have changed. */
    void tellChanges(const ReaderState &state);
    /** Reports the contents of fields, which discards text that the user has begun to type. */
    void tellFields();

private:
    void tellUsable(const ReaderState &state);
    void tellTexts();
    void tellChecked(const ReaderState &state);
    void tellPage();
    void tellZoom();
    void setChecked(QString name, bool checked);

    MRToolBar &m_toolBar;
    const CommandTable &m_commands;
    ReaderState m_told;
};
