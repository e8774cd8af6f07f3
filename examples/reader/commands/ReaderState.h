// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

#include <QStringList>

/** The state of the reader as the toolbar shows it. */
struct ReaderState
{
    bool isOpen = false;
    bool isModified = false;
    bool canUndo = false;
    bool canRedo = false;
    QString undoText; ///< What can be undone, and next, redone; as the user is told.
    QString redoText;
    bool isFullScreen = false;
    bool hasSelection = false;
    int page = 0; ///< Counted from 1; 0 without a document.
    int pageCount = 0;
    QString zoomMode;
    QString layoutMode; ///< This and the next two: names of controls.
    QString tool;
    QString panel; ///< Empty while no panel is shown.
    BackgroundStyle background = Background_Default;
    QStringList recentFiles;
};
