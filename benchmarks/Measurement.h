// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "benchmarks/Workload.h"

#include <QJsonObject>
#include <QMainWindow>

#include <memory>

class Contender;

/** Takes all figures of one contender, once, in a process that has shown nothing before. */
class Measurement
{
public:
    /** @param contender "toolbar" or "floor" */
    Measurement(const QString &contender, const Workload &workload);
    ~Measurement();

    /** The figures by name: milliseconds, microseconds, MiB and counts as the names say. */
    QJsonObject run();

private:
    void showFirstWindow();
    void openSecondTab();
    void openAllTabs();
    void setStates();
    void switchColours();
    void moveMouse();

    void clickTab(int tab);
    void settle();
    void storeMemory(const QString &when);

    Workload m_workload;
    std::unique_ptr<Contender> m_contender;
    QMainWindow m_window;
    QJsonObject m_figures;
};
