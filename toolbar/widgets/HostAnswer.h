// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class QWidget;

/**
 * Marks that the host is answering a signal. In its answer the host may end the toolbar, also
 * inside an event loop of its own, while Qt still executes an event handler of the menu or list
 * that the command was chosen from. Such a widget is deleted after the outermost answer.
 */
class HostAnswer
{
public:
    HostAnswer();
    ~HostAnswer();
    Q_DISABLE_COPY_MOVE(HostAnswer)

    /** Whether any host is answering. */
    static bool isPending();

    /**
     * Takes @p widget from its parent and has it deleted when control returns to the event loop
     * that the outermost answer, if there is one, was called from.
     */
    static void deleteWhenOver(QWidget *widget);

    /** The same for a widget that Qt has just asked to be deleted later; else Qt deletes it. */
    static void postponeDeletion(QWidget *widget);
};
