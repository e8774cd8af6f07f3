// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QJsonObject>
#include <QString>

/** Measures the elapsed time and the processor time of this process. */
class Stopwatch
{
public:
    /** Starts the measurement. */
    Stopwatch();

    /** Stores both times since the start, in milliseconds each divided by @p count. */
    void store(QJsonObject &figures, const QString &name, double count = 1.0) const;

    /** The suffix of the names of processor times. */
    static QString processorSuffix();

private:
    static double processorMilliseconds();

    QElapsedTimer m_timer;
    double m_processorStart;
};
