// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBrush>

#include <memory>
#include <variant>

namespace Ofd {

struct Pattern;
class Shading;

/** What an area or a line is painted with. */
using Paint = std::variant<QBrush, std::shared_ptr<const Shading>, std::shared_ptr<const Pattern>>;

} // namespace Ofd
