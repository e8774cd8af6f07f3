// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Shading.h"
#include "ofd/XmlElement.h"

#include <functional>
#include <memory>

namespace Ofd::ShadingReader {

/** Reads an element of a basic colour. */
using ColourOf = std::function<QColor(const XmlElement &)>;

/** Reads a gradient or a mesh; null for an element, or for values, that cannot be painted. */
std::shared_ptr<const Shading> read(const XmlElement &shade, const ColourOf &colourOf);

} // namespace Ofd::ShadingReader
