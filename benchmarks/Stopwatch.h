// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QJsonObject>
#include <QString>

/** Measures the time that passes and the processor time that this process uses. */
class Stopwatch
{
public:
    /** Starts. */
    Stopwatch();

    /** Stores both times since the start, in milliseconds each divided by @p count. */
    void store(QJsonObject &figures, const QString &name, double count = 1.0) const;

    /** What stands behind the name of a figure that is processor time. */
    static QString processorSuffix();

private:
    static double processorMilliseconds();

    QElapsedTimer m_timer;
    double m_processorStart;
};
