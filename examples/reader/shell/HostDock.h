// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDockWidget>

class HostPanel;
class MRToolBar;
class SignalLog;

/** What is shown to those who write hosts: the choices of the skin, and the log of signals. */
class HostDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit HostDock(QWidget *parent);

    HostPanel *panel() const { return m_panel; }
    void listenTo(const MRToolBar &toolBar);

private:
    HostPanel *m_panel;
    SignalLog *m_log;
};
