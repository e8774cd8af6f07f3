// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "benchmarks/Workload.h"

#include <QJsonObject>
#include <QMainWindow>

#include <memory>

class Contender;

/** Measures one contender once, in a process that has not shown a window before. */
class Measurement
{
public:
    /** @param contender "toolbar" or "floor" */
    Measurement(const QString &contender, const Workload &workload);
    ~Measurement();

    /** The figures by name. The name includes the unit: milliseconds, microseconds, MiB or none. */
    QJsonObject run();

private:
    void showFirstWindow();
    void openSecondTab();
    void openAllTabs();
    void setStates();
    void switchColours();
    void switchScale();
    void moveMouse();
    void findCommands();

    void clickTab(int tab);
    void settle();
    void storeMemory(const QString &when);

    Workload m_workload;
    std::unique_ptr<Contender> m_contender;
    QMainWindow m_window;
    QJsonObject m_figures;
};
