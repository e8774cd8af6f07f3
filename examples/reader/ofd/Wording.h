// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace Ofd {

/** The translation context of the messages about a file. */
class Wording
{
    Q_DECLARE_TR_FUNCTIONS(Ofd)
};

} // namespace Ofd
