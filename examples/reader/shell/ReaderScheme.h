// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** How light the reader is, in the words of the toolbar's skin map. */
namespace ReaderScheme {

/** Light, dark, with high contrast, or as the system has it, in this order. */
QStringList names();

/** The commands that choose a scheme, and the scheme that such a command chooses. */
QStringList commands();
QString ofCommand(const QString &command);

/** Gives everything in the reader that is not the toolbar's a palette that goes with the scheme. */
void applyPalette(const QString &name);

} // namespace ReaderScheme
