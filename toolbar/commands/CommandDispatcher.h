// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/NamedList.h"
#include "toolbar/ToolBarTypes.h"

#include <QObject>

class ClickClock;
class MRDropButton;
class QAction;
class QTimer;

/** Decides what a triggered command tells the host. */
class CommandDispatcher : public QObject
{
    Q_OBJECT

public:
    /**
     * The toolbar's own members: the wait for a second click, whose end calls reportDelayed(), and
     * the command that waits.
     */
    CommandDispatcher(const NamedList<QAction> &actions, const NamedList<MRDropButton> &dropButtons,
                      QTimer &wait, QString &waitingCommand);

    /** Has the command dispatched whenever it is triggered. */
    void connectCommand(QAction *command);
    void dispatch(QAction *command);
    /** No second click has come. */
    void reportDelayed();

Q_SIGNALS:
    void activated(QString name);
    void doubleActivated(QString name);
    void backgroundChosen(BackgroundStyle style);
    /** A layout of whole pages was chosen. */
    void flowModeEnded();

private:
    void releaseOtherDropButtons(QAction *command);
    void dispatchPlain(QString name);
    void watchClicks();
    void dispatchDoubleClick(const QString &name);

    const NamedList<QAction> &m_actions;
    const NamedList<MRDropButton> &m_dropButtons;
    QTimer &m_wait;
    QString &m_waitingCommand;
    ClickClock *m_clicks = nullptr; ///< From the first command on that reacts to double clicks.
};
