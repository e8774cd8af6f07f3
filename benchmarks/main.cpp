// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/Measurement.h"
#include "benchmarks/Report.h"
#include "benchmarks/Runner.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonDocument>
#include <QTextStream>

#include <algorithm>
#include <cstring>

namespace {

constexpr int fewestRepetitions = 5;

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Measures the toolbar against one that is made of plain Qt widgets. Without "
                       "--tabs and --commands three sizes are measured."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("tabs"), QStringLiteral("Number of tabs."), QStringLiteral("count")},
        {QStringLiteral("commands"), QStringLiteral("Number of commands of each tab."),
         QStringLiteral("count")},
        {QStringLiteral("repetitions"), QStringLiteral("Runs of which the median counts."),
         QStringLiteral("count"), QString::number(fewestRepetitions)},
        {QStringLiteral("json"), QStringLiteral("Writes the figures to a file, too."),
         QStringLiteral("file")},
        {QStringLiteral("quick"), QStringLiteral("One run of a small size, to see that it runs.")},
        {QStringLiteral("contender"), QStringLiteral("One run of \"toolbar\" or \"floor\"."),
         QStringLiteral("name")},
    });
}

Workload describedWorkload(const QCommandLineParser &parser)
{
    Workload workload;
    if (parser.isSet(QStringLiteral("tabs")))
        workload.tabs = std::max(1, parser.value(QStringLiteral("tabs")).toInt());
    if (parser.isSet(QStringLiteral("commands")))
        workload.commands = std::max(1, parser.value(QStringLiteral("commands")).toInt());
    return workload;
}

QList<Workload> workloads(const QCommandLineParser &parser)
{
    const bool isGiven =
        parser.isSet(QStringLiteral("tabs")) || parser.isSet(QStringLiteral("commands"));
    if (isGiven || parser.isSet(QStringLiteral("quick")))
        return {describedWorkload(parser)};
    return {Workload{3, 30}, Workload{5, 200}, Workload{20, 200}};
}

int runOnce(const QCommandLineParser &parser)
{
    Measurement measurement(parser.value(QStringLiteral("contender")), describedWorkload(parser));
    QTextStream(stdout) << QJsonDocument(measurement.run()).toJson();
    return 0;
}

int runAll(const QCommandLineParser &parser)
{
    const bool isQuick = parser.isSet(QStringLiteral("quick"));
    const int wanted = parser.value(QStringLiteral("repetitions")).toInt();
    const int repetitions = isQuick ? 1 : std::max(1, wanted);
    QJsonObject results;
    for (const Workload &workload : workloads(parser)) {
        const QJsonObject medians = Runner::run(workload, repetitions);
        if (medians.isEmpty()) {
            QTextStream(stderr) << "A run of " << workload.name() << " has failed.\n";
            return 1;
        }
        results.insert(workload.name(), medians);
        QTextStream(stdout) << Report::table(workload.name(), medians) << "\n";
    }
    const QString file = parser.value(QStringLiteral("json"));
    return file.isEmpty() || Report::writeJson(file, results) ? 0 : 1;
}

/** Whether this process measures, which needs a QApplication; the one that starts it does not. */
bool isContender(int argc, char *argv[])
{
    return std::any_of(argv, argv + argc, [](const char *argument) {
        return std::strncmp(argument, "--contender", std::strlen("--contender")) == 0;
    });
}

template <typename Application>
int runProgram(int &argc, char *argv[])
{
    const Application application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    return parser.isSet(QStringLiteral("contender")) ? runOnce(parser) : runAll(parser);
}

} // namespace

int main(int argc, char *argv[])
{
    return isContender(argc, argv) ? runProgram<QApplication>(argc, argv)
                                   : runProgram<QCoreApplication>(argc, argv);
}
