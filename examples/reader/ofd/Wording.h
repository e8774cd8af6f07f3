// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace Ofd {

/** The context of the texts in which a reader tells about a file. */
class Wording
{
    Q_DECLARE_TR_FUNCTIONS(Ofd)
};

} // namespace Ofd
