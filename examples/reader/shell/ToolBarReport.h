// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/CommandTable.h"
#include "commands/ReaderState.h"

class MRToolBar;

/** Tells the toolbar how the reader stands. */
class ToolBarReport
{
public:
    ToolBarReport(MRToolBar &toolBar, const CommandTable &commands);

    /** Controls were just made and know nothing yet: everything is told. */
    void tellAll(const ReaderState &state);
    /** Something happened: what is shown in fields is told only where it changed. */
    void tellChanges(const ReaderState &state);
    /** What the user has begun to type gives way to how the reader stands. */
    void tellFields();

private:
    void tellUsable(const ReaderState &state);
    void tellChecked(const ReaderState &state);
    void tellPage();
    void tellZoom();
    void setChecked(QString name, bool checked);

    MRToolBar &m_toolBar;
    const CommandTable &m_commands;
    ReaderState m_told;
};
