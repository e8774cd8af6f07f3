// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The text of a control without the mark of its mnemonic, and "Open" for "Open(&O)". */
QString withoutMnemonic(QString text);
