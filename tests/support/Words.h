// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** The words of a text, for long lists of names without blanks. */
inline QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}
