// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

QString Report::severityName(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStringLiteral("note");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Error:
        break;
    }
    return QStringLiteral("error");
}

QString Report::text(const QVector<FileReport> &reports)
{
    QString lines;
    for (const FileReport &report : reports) {
        for (const Finding &finding : report.findings)
            lines +=
                QStringLiteral("%1:%2:%3: ").arg(report.file).arg(finding.line).arg(finding.column)
                + severityName(finding.severity) + QStringLiteral(": ") + finding.message
                + QStringLiteral(" [") + finding.id + QStringLiteral("]\n");
    }
    return lines;
}

QByteArray Report::json(const QVector<FileReport> &reports)
{
    QJsonArray all;
    for (const FileReport &report : reports) {
        for (const Finding &finding : report.findings)
            all.append(QJsonObject{
                {QStringLiteral("file"), report.file},
                {QStringLiteral("line"), finding.line},
                {QStringLiteral("column"), finding.column},
                {QStringLiteral("severity"), severityName(finding.severity)},
                {QStringLiteral("id"), finding.id},
                {QStringLiteral("message"), finding.message},
            });
    }
    return QJsonDocument(all).toJson();
}
