// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/ToolBarContender.h"

#include "toolbar/MRToolBar.h"

#include <QMainWindow>

ToolBarContender::ToolBarContender(const Workload &workload)
    : m_workload(workload)
{
}

ToolBarContender::~ToolBarContender() = default;

void ToolBarContender::prepare()
{
    if (!m_document.setContent(m_workload.description()))
        qFatal("The description can't be read");
}

void ToolBarContender::build(QMainWindow &window)
{
    QDomElement root = m_document.documentElement();
    m_toolBar = std::make_unique<MRToolBar>(&window, root, QMap<QString, QString>(), ToolBarLeft);
    // The first report of a state enables the rows.
    QString name = m_workload.commandName(0, 0);
    m_toolBar->DoSetControlUsableStateSlot(name, true);
}

void ToolBarContender::tidyUp()
{
    m_document = QDomDocument();
}

void ToolBarContender::setUsable(QString &name, bool usable)
{
    m_toolBar->DoSetControlUsableStateSlot(name, usable);
}

void ToolBarContender::setChecked(QString &name, bool checked)
{
    m_toolBar->DoSetControlCheckedStateSlot(name, checked);
}

bool ToolBarContender::changeScale()
{
    m_toolBar->DoSetScaleSlot(1.5);
    return true;
}

bool ToolBarContender::openFinder()
{
    m_toolBar->DoFindCommandSlot();
    return true;
}

bool ToolBarContender::changeColours()
{
    m_toolBar->DoSetSkinStyleSlot({{QStringLiteral("[MainColor]"), QStringLiteral("#336699")}});
    return true;
}
