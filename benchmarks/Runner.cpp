// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/Runner.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QMap>
#include <QProcess>

#include <algorithm>

namespace {

using Samples = QMap<QString, QList<double>>;

QJsonObject runOnce(const QString &contender, const Workload &workload)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--contender"), contender, QStringLiteral("--tabs"),
                   QString::number(workload.tabs), QStringLiteral("--commands"),
                   QString::number(workload.commands)});
    constexpr int timeLimit = 120000;
    if (!process.waitForFinished(timeLimit) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return {};
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const auto middle = values.size() / 2;
    if (values.size() % 2 == 1)
        return values.at(middle);
    return (values.at(middle - 1) + values.at(middle)) / 2;
}

QJsonObject medians(const Samples &samples)
{
    QJsonObject result;
    for (auto sample = samples.cbegin(); sample != samples.cend(); ++sample)
        result.insert(sample.key(), median(sample.value()));
    return result;
}

} // namespace

QStringList Runner::contenders()
{
    return {QStringLiteral("toolbar"), QStringLiteral("floor")};
}

QJsonObject Runner::run(const Workload &workload, int repetitions)
{
    QMap<QString, Samples> samples;
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        // In turn, so that other load on the machine affects both alike.
        for (const QString &contender : contenders()) {
            const QJsonObject figures = runOnce(contender, workload);
            if (figures.isEmpty())
                return {};
            for (auto figure = figures.begin(); figure != figures.end(); ++figure)
                samples[contender][figure.key()].append(figure.value().toDouble());
        }
    }

    QJsonObject result;
    for (const QString &contender : contenders())
        result.insert(contender, medians(samples.value(contender)));
    return result;
}
