// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/HostDock.h"

#include "panels/HostPanel.h"
#include "panels/LanguageFollower.h"
#include "panels/SignalLog.h"

#include <QVBoxLayout>

namespace {

constexpr int leastWidth = 300;
constexpr int referenceDpi = 96;

} // namespace

HostDock::HostDock(QWidget *parent)
    : QDockWidget(parent)
    , m_panel(new HostPanel)
    , m_log(new SignalLog)
{
    setObjectName(QStringLiteral("host"));
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_panel);
    layout->addWidget(m_log);
    content->setMinimumWidth(leastWidth * logicalDpiX() / referenceDpi);
    setWidget(content);
    LanguageFollower::attach(this, [this] { setWindowTitle(tr("宿主")); });
}

void HostDock::listenTo(const MRToolBar &toolBar)
{
    m_log->listenTo(toolBar);
}
