// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/ColourReader.h"
#include "ofd/Objects.h"

#include <QHash>
#include <QStringList>

namespace Ofd {

/** Reads drawing parameters: attributes of objects, and resources that objects refer to. */
class StyleReader
{
public:
    explicit StyleReader(const ColourReader &colours)
        : m_colours(colours)
    {
    }

    void addParameters(const XmlElement &parameters);
    /** Merges each with the parameters that it is relative to; throws a Fault for a circle. */
    void resolve();

    /** The parameters of the element, then those it refers to, then those of @p wider. */
    Style read(const XmlElement &element, const Style &wider) const;

    /** The line of an element that describes the frame of a picture. */
    Style readBorder(const XmlElement &border) const { return own(border, "BorderColor"); }
    bool contains(const QString &parameters) const { return m_parameters.contains(parameters); }

private:
    Style own(const XmlElement &element, const char *stroke = "StrokeColor") const;

    struct Parameters
    {
        Style style;
        QString relative;
    };

    const ColourReader &m_colours;
    QHash<QString, Parameters> m_parameters;
    QStringList m_unresolved; ///< Those that were added since resolve() was called.
};

} // namespace Ofd
