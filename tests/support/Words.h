// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** A list of words from a text, for long lists without blanks in their entries. */
inline QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}
