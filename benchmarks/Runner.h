// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "benchmarks/Workload.h"

#include <QJsonObject>
#include <QStringList>

/** Runs this program in a process for each contender and repetition, and computes medians. */
namespace Runner {

/** The contenders in the order of their runs: the toolbar, then the floor. */
QStringList contenders();

/** The medians of all figures by contender; empty if a run has failed. */
QJsonObject run(const Workload &workload, int repetitions);

} // namespace Runner
