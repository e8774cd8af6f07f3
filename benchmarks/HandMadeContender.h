// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "benchmarks/Contender.h"
#include "benchmarks/Workload.h"

#include <QHash>

class QAction;
class QMenu;
class QStackedWidget;
class QToolBar;
class QWidget;

/**
 * The floor: the same tabs and commands as plain Qt widgets, without a description and without a
 * style sheet. Rows and the menu are filled when they are first opened.
 */
class HandMadeContender : public Contender
{
public:
    explicit HandMadeContender(const Workload &workload);

    void build(QMainWindow &window) override;
    void setUsable(QString &name, bool usable) override;
    void setChecked(QString &name, bool checked) override;

private:
    QWidget *createFileButton();
    void fillMenu(QMenu *menu);
    QWidget *createTabButton(int tab);
    QToolBar *createRow();
    void fillRow(int tab);
    void openTab(int tab);

    Workload m_workload;
    QWidget *m_owner = nullptr;
    QStackedWidget *m_rows = nullptr;
    QHash<QString, QAction *> m_actions;
};
