// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/Stopwatch.h"

#include <ctime>

Stopwatch::Stopwatch()
    : m_processorStart(processorMilliseconds())
{
    m_timer.start();
}

void Stopwatch::store(QJsonObject &figures, const QString &name, double count) const
{
    const double passed = static_cast<double>(m_timer.nsecsElapsed()) / 1e6;
    figures.insert(name, passed / count);
    figures.insert(name + processorSuffix(), (processorMilliseconds() - m_processorStart) / count);
}

QString Stopwatch::processorSuffix()
{
    return QStringLiteral(" (processor)");
}

double Stopwatch::processorMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}
