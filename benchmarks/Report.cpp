// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/Report.h"

#include "benchmarks/Stopwatch.h"

#include <QFile>
#include <QJsonDocument>
#include <QStringList>

namespace {

const QStringList &lines()
{
    static const QStringList names{
        QStringLiteral("description ms"),
        QStringLiteral("construction ms"),
        QStringLiteral("first window ms"),
        QStringLiteral("first window at rest ms"),
        QStringLiteral("second tab ms"),
        QStringLiteral("usable state us"),
        QStringLiteral("checked state us"),
        QStringLiteral("finder opened ms"),
        QStringLiteral("slowest key of the finder ms"),
        QStringLiteral("change of colours ms"),
        QStringLiteral("change of scale ms"),
        QStringLiteral("mouse move us"),
        QStringLiteral("allocations of 100 moves"),
        QStringLiteral("layouts of 100 moves"),
        QStringLiteral("sheets set by 100 moves"),
        QStringLiteral("memory at first MiB"),
        QStringLiteral("memory with all rows MiB"),
    };
    return names;
}

QString cell(const QJsonValue &value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'f', 2) : QStringLiteral("-");
}

QString ratio(const QJsonValue &toolBar, const QJsonValue &floor)
{
    if (!toolBar.isDouble() || floor.toDouble() <= 0)
        return QStringLiteral("-");
    return QString::number(toolBar.toDouble() / floor.toDouble(), 'f', 2);
}

QString line(const QString &name, const QStringList &cells)
{
    constexpr int nameWidth = 28;
    constexpr int cellWidth = 12;
    QString text = name.leftJustified(nameWidth);
    for (const QString &cell : cells)
        text += cell.rightJustified(cellWidth);
    return text + QLatin1Char('\n');
}

} // namespace

QString Report::table(const QString &workload, const QJsonObject &medians)
{
    const QJsonObject toolBar = medians.value(QLatin1String("toolbar")).toObject();
    const QJsonObject floor = medians.value(QLatin1String("floor")).toObject();
    QString text = line(workload, {QStringLiteral("toolbar"), QStringLiteral("floor"),
                                   QStringLiteral("ratio"), QStringLiteral("processor")});
    for (const QString &name : lines()) {
        const QString processor = name + Stopwatch::processorSuffix();
        text += line(name, {cell(toolBar.value(name)), cell(floor.value(name)),
                            ratio(toolBar.value(name), floor.value(name)),
                            ratio(toolBar.value(processor), floor.value(processor))});
    }
    return text;
}

bool Report::writeJson(const QString &path, const QJsonObject &results)
{
    QFile file(path);
    const QByteArray text = QJsonDocument(results).toJson();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}
