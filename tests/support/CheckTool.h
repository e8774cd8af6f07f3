// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QProcess>
#include <QTest>

/** Runs the program mrtoolbar-check, whose path is in CHECK_TOOL. */
namespace CheckTool {

struct ToolResult
{
    int exitCode = -1;
    QByteArray output;
    QByteArray error;
};

inline ToolResult runTool(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess tool;
    // It is called while building, where there is no display.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    tool.setProcessEnvironment(environment);
    tool.start(CHECK_TOOL, arguments);
    tool.write(input);
    tool.closeWriteChannel();
    if (!tool.waitForFinished() || tool.exitStatus() != QProcess::NormalExit)
        return {};
    return {tool.exitCode(), tool.readAllStandardOutput(), tool.readAllStandardError()};
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace CheckTool
