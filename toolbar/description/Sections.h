// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/description/Names.h"

#include <QList>

struct Controller;

/** The records of a section, in their order. */
QList<Controller *> sectionRecords(const QList<Controller *> &records, QLatin1String section);

/** Those of the application button and of the button beside it; further ones are not made. */
QList<Controller *> appButtonRecords(const QList<Controller *> &records);
