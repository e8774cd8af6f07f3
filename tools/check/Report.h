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

/** The forms in which findings are written. */
namespace Report {

QString severityName(Severity severity);

/** One line a finding, "file:line:column: severity: sentence [id]", as compilers write theirs. */
QString text(const QVector<FileReport> &reports);

/** An array with one object a finding; empty brackets without any. */
QByteArray json(const QVector<FileReport> &reports);

} // namespace Report
