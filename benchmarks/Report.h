// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

/** The output of the figures of Runner. */
namespace Report {

/** A table of one workload: a line for each figure, with the ratio of the toolbar to the floor. */
QString table(const QString &workload, const QJsonObject &medians);

/** Writes all figures to a file; returns false on failure. */
bool writeJson(const QString &path, const QJsonObject &results);

} // namespace Report
