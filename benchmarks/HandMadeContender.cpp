// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/HandMadeContender.h"

#include <QAction>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

HandMadeContender::HandMadeContender(const Workload &workload)
    : m_workload(workload)
{
}

void HandMadeContender::build(QMainWindow &window)
{
    m_owner = new QWidget(&window);
    m_rows = new QStackedWidget;
    auto *topLine = new QHBoxLayout;
    topLine->addWidget(createFileButton());
    auto *tabs = new QButtonGroup(m_owner);
    for (int tab = 0; tab < m_workload.tabs; ++tab) {
        auto *button = createTabButton(tab);
        tabs->addButton(qobject_cast<QAbstractButton *>(button));
        topLine->addWidget(button);
        m_rows->addWidget(createRow());
    }
    topLine->addStretch();
    fillRow(0);

    auto *layout = new QVBoxLayout(m_owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(topLine);
    layout->addWidget(m_rows);
    window.addToolBar(QString())->addWidget(m_owner);
}

QWidget *HandMadeContender::createFileButton()
{
    auto *button = new QPushButton(QStringLiteral("文件"));
    auto *menu = new QMenu(button);
    button->setMenu(menu);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu] {
        if (menu->isEmpty())
            fillMenu(menu);
    });
    return button;
}

void HandMadeContender::fillMenu(QMenu *menu)
{
    for (int entry = 0; entry < Workload::menuEntries; ++entry) {
        QAction *action =
            menu->addAction(QIcon(Workload::iconDirectory() + Workload::commandIcon(entry)),
                            Workload::commandText(entry));
        m_actions.insert(m_workload.menuEntryName(entry), action);
    }
}

QWidget *HandMadeContender::createTabButton(int tab)
{
    auto *button = new QPushButton(QStringLiteral("标签%1").arg(tab));
    button->setObjectName(m_workload.tabName(tab));
    button->setCheckable(true);
    button->setChecked(tab == 0);
    button->setFlat(true);
    QObject::connect(button, &QPushButton::clicked, m_owner, [this, tab] { openTab(tab); });
    return button;
}

QToolBar *HandMadeContender::createRow()
{
    auto *row = new QToolBar;
    row->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    row->setIconSize(QSize(24, 24));
    return row;
}

void HandMadeContender::fillRow(int tab)
{
    auto *row = qobject_cast<QToolBar *>(m_rows->widget(tab));
    for (int command = 0; command < m_workload.commands; ++command) {
        auto *action =
            new QAction(QIcon(Workload::iconDirectory() + Workload::commandIcon(command)),
                        Workload::commandText(command), m_owner);
        action->setToolTip(Workload::commandToolTip(command));
        action->setCheckable(true);
        row->addAction(action);
        m_actions.insert(m_workload.commandName(tab, command), action);
    }
}

void HandMadeContender::openTab(int tab)
{
    const auto *row = qobject_cast<QToolBar *>(m_rows->widget(tab));
    if (row->actions().isEmpty())
        fillRow(tab);
    m_rows->setCurrentIndex(tab);
}

void HandMadeContender::setUsable(QString &name, bool usable)
{
    if (QAction *action = m_actions.value(name))
        action->setEnabled(usable);
}

void HandMadeContender::setChecked(QString &name, bool checked)
{
    if (QAction *action = m_actions.value(name))
        action->setChecked(checked);
}
