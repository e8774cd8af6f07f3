// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Ofd {

/** What is wrong with a file, in one sentence. Thrown while reading; it never leaves read(). */
struct Fault
{
    QString message;
};

} // namespace Ofd
