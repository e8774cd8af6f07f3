// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/DescriptionCheck.h"

#include <QByteArray>

/** The findings of one file. */
struct FileReport
{
    QString file;
    QVector<Finding> findings;
};

/** The output formats of findings. */
namespace Report {

QString severityName(Severity severity);

/** A line for each finding as in compiler messages: "file:line:column: severity: text [id]". */
QString text(const QVector<FileReport> &reports);

/** An array with an object for each finding. */
QByteArray json(const QVector<FileReport> &reports);

} // namespace Report
