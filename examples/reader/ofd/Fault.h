// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Ofd {

/** The exception for a broken file, with one sentence for the user. read() catches it. */
struct Fault
{
    QString message;
};

} // namespace Ofd
