// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/Names.h"

#include <QList>

struct Controller;

/** The records of a section, in their order. */
QList<Controller *> sectionRecords(const QList<Controller *> &records, QLatin1String section);
