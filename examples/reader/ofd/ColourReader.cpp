// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ColourReader.h"

#include "ofd/Values.h"
#include "ofd/Wording.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

constexpr int mostBits = 16;

QGradient::Spread spreadOf(const QString &mapType)
{
    if (mapType == QLatin1String("Repeat"))
        return QGradient::RepeatSpread;
    return mapType == QLatin1String("Reflect") ? QGradient::ReflectSpread : QGradient::PadSpread;
}

} // namespace

void ColourReader::addSpace(const XmlElement &element)
{
    Space space;
    const QString type = element.attribute("Type").toUpper();
    if (!type.isEmpty())
        space.type = type;
    space.bits =
        std::clamp(int(Values::number(element.attribute("BitsPerComponent"), 8)), 1, mostBits);
    if (const XmlElement *palette = element.child("Palette")) {
        for (const XmlElement &entry : palette->children)
            space.palette.append(Values::numbers(entry.text));
    }
    m_spaces.insert(element.attribute("ID"), space);
}

std::optional<QBrush> ColourReader::read(const XmlElement &parent, const char *name) const
{
    const XmlElement *colour = parent.child(name);
    if (!colour)
        return std::nullopt;
    if (const XmlElement *shade = colour->child("AxialShd"))
        return gradientOf(*shade, false);
    if (const XmlElement *shade = colour->child("RadialShd"))
        return gradientOf(*shade, true);
    if (!colour->children.empty()) {
        const QString kind =
            colour->child("Pattern") ? Wording::tr("图案填充") : Wording::tr("网格渐变");
        ++m_unsupported[kind];
        if (colour->attribute("Value").isEmpty())
            return QBrush(Qt::NoBrush);
    }
    return QBrush(colourOf(*colour));
}

QColor ColourReader::colourOf(const XmlElement &element) const
{
    QString id = element.attribute("ColorSpace");
    if (id.isEmpty())
        id = m_defaultSpace;
    const Space space = m_spaces.value(id);
    QVector<qreal> values = Values::numbers(element.attribute("Value"));
    const QString index = element.attribute("Index");
    if (values.isEmpty() && !index.isEmpty())
        values = space.palette.value(int(Values::number(index, 0)));
    QColor colour = colourOf(values, space);
    const qreal alpha = Values::number(element.attribute("Alpha"), 255);
    colour.setAlphaF(float(std::clamp(alpha / 255, 0.0, 1.0)));
    return colour;
}

QColor ColourReader::colourOf(const QVector<qreal> &values, const Space &space) const
{
    const qreal most = std::pow(2, space.bits) - 1;
    const auto part = [&](int i) { return float(std::clamp(values.value(i) / most, 0.0, 1.0)); };
    // A value with another number of components than its space is read by that number.
    if (values.size() == 1 && (space.type == QLatin1String("GRAY") || space.palette.isEmpty()))
        return QColor::fromRgbF(part(0), part(0), part(0));
    if (values.size() == 4)
        return QColor::fromCmykF(part(0), part(1), part(2), part(3)).toRgb();
    return QColor::fromRgbF(part(0), part(1), part(2));
}

QBrush ColourReader::gradientOf(const XmlElement &shade, bool isRadial) const
{
    const QPointF start = Values::point(shade.attribute("StartPoint"), QPointF());
    const QPointF end = Values::point(shade.attribute("EndPoint"), start);
    if (!isRadial) {
        QLinearGradient gradient(start, end);
        addStops(gradient, shade);
        return gradient;
    }
    const qreal startRadius = Values::number(shade.attribute("StartRadius"), 0);
    const qreal endRadius = Values::number(shade.attribute("EndRadius"), 0);
    QRadialGradient gradient(end, std::max(0.0, endRadius), start, std::max(0.0, startRadius));
    addStops(gradient, shade);
    return gradient;
}

void ColourReader::addStops(QGradient &gradient, const XmlElement &shade) const
{
    gradient.setSpread(spreadOf(shade.attribute("MapType")));
    QVector<const XmlElement *> segments;
    for (const XmlElement &segment : shade.children) {
        if (segment.is("Segment") && segment.child("Color"))
            segments.append(&segment);
    }
    const qreal steps = std::max(1, int(segments.size()) - 1);
    for (int i = 0; i < segments.size(); ++i) {
        const qreal position = Values::number(segments.at(i)->attribute("Position"), i / steps);
        gradient.setColorAt(std::clamp(position, 0.0, 1.0),
                            colourOf(*segments.at(i)->child("Color")));
    }
}

} // namespace Ofd
