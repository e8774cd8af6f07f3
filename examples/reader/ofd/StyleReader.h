// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/ColourReader.h"
#include "ofd/Objects.h"

#include <QHash>

namespace Ofd {

/** Drawing parameters: those that stand at an object and those that it refers to. */
class StyleReader
{
public:
    explicit StyleReader(const ColourReader &colours)
        : m_colours(colours)
    {
    }

    void addParameters(const XmlElement &parameters);
    /** Joins each to those it is relative to; throws a Fault for a circle. */
    void resolve();

    /** What stands at the element, over the parameters it refers to, over @p wider. */
    Style read(const XmlElement &element, const Style &wider) const;

private:
    Style own(const XmlElement &element) const;

    struct Parameters
    {
        Style style;
        QString relative;
    };

    const ColourReader &m_colours;
    QHash<QString, Parameters> m_parameters;
};

} // namespace Ofd
