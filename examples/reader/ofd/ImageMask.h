// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace Ofd {

/** The picture where the mask is white, in the size of the larger one; grey is half transparent. */
QImage masked(const QImage &picture, const QImage &mask);

} // namespace Ofd
