// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Sections.h"

#include "toolbar/description/Controller.h"

#include <algorithm>
#include <iterator>

QList<Controller *> sectionRecords(const QList<Controller *> &records, QLatin1String section)
{
    QList<Controller *> found;
    std::copy_if(records.begin(), records.end(), std::back_inserter(found),
                 [section](const Controller *record) { return record->section == section; });
    return found;
}

QList<Controller *> appButtonRecords(const QList<Controller *> &records)
{
    constexpr int made = 2;
    return sectionRecords(records, Section::appButton).mid(0, made);
}
