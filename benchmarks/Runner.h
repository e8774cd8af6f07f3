// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "benchmarks/Workload.h"

#include <QJsonObject>
#include <QStringList>

/** Runs this program again, a process per contender and repetition, and takes medians. */
namespace Runner {

/** The contenders in the order in which they take turns: what is measured, then the floor. */
QStringList contenders();

/** The medians of all figures by contender; empty if a run has failed. */
QJsonObject run(const Workload &workload, int repetitions);

} // namespace Runner
