// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QComboBox;

/**
 * Gives the first entries of a list other texts. Its entry on show and what has been typed stay,
 * and nobody is told.
 */
void setEntryTexts(QComboBox *box, const QStringList &texts);
