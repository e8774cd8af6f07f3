// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "benchmarks/Contender.h"
#include "benchmarks/Workload.h"

#include <QDomDocument>

#include <memory>

class MRToolBar;

/** The library's toolbar, made from a description. */
class ToolBarContender : public Contender
{
public:
    explicit ToolBarContender(const Workload &workload);
    ~ToolBarContender() override;

    void prepare() override;
    void build(QMainWindow &window) override;
    void tidyUp() override;
    void setUsable(QString &name, bool usable) override;
    void setChecked(QString &name, bool checked) override;
    bool changeColours() override;
    bool changeScale() override;
    bool openFinder() override;

private:
    Workload m_workload;
    QDomDocument m_document;
    std::unique_ptr<MRToolBar> m_toolBar;
};
