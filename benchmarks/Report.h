// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

/** How the figures of Runner are shown. */
namespace Report {

/** A table of one workload: a line per figure, with the ratio of the toolbar to the floor. */
QString table(const QString &workload, const QJsonObject &medians);

/** Writes everything measured; returns whether that was possible. */
bool writeJson(const QString &path, const QJsonObject &results);

} // namespace Report
