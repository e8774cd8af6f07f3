// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

#include <functional>

/** An icon that a function draws whenever it is painted. */
QIcon paintedIcon(const std::function<void(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                                           QIcon::State state)> &paint);
