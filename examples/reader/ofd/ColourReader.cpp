// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ColourReader.h"

#include "ofd/Limits.h"
#include "ofd/Pattern.h"
#include "ofd/ShadingReader.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

constexpr int mostBits = 16;

qreal alphaOf(const XmlElement &colour)
{
    return std::clamp(Values::number(colour.attribute("Alpha"), 255) / 255, 0.0, 1.0);
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

std::optional<Paint> ColourReader::read(const XmlElement &parent, const char *name) const
{
    const XmlElement *colour = parent.child(name);
    if (!colour)
        return std::nullopt;
    if (colour->children.empty())
        return flat(*colour);
    return colour->child("Pattern") ? patternOf(*colour) : shadingOf(*colour);
}

Paint ColourReader::flat(const XmlElement &colour) const
{
    return QBrush(colourOf(colour));
}

Paint ColourReader::shadingOf(const XmlElement &colour) const
{
    const qreal alpha = alphaOf(colour);
    const auto basic = [&](const XmlElement &element) {
        QColor part = colourOf(element);
        part.setAlphaF(float(part.alphaF() * alpha));
        return part;
    };
    if (const auto shading = ShadingReader::read(colour.children.front(), basic))
        return shading;
    return without(colour, Wording::tr("无法绘制的渐变"));
}

Paint ColourReader::patternOf(const XmlElement &colour) const
{
    const XmlElement &element = *colour.child("Pattern");
    auto pattern = std::make_shared<Pattern>();
    pattern->size = QSizeF(Values::number(element.attribute("Width"), 0),
                           Values::number(element.attribute("Height"), 0));
    const XmlElement *content = element.child("CellContent");
    if (!content || !m_readCell || pattern->size.width() < Limits::patternSide
        || pattern->size.height() < Limits::patternSide)
        return without(colour, Wording::tr("无法绘制的底纹"));
    const QSizeF step(Values::number(element.attribute("XStep"), 0),
                      Values::number(element.attribute("YStep"), 0));
    pattern->step = step.expandedTo(pattern->size);
    const QString method = element.attribute("ReflectMethod");
    const bool isBoth = method == QLatin1String("RowAndColumn");
    pattern->mirrorsColumns = isBoth || method == QLatin1String("Row");
    pattern->mirrorsRows = isBoth || method == QLatin1String("Column");
    pattern->isRelativeToPage = element.attribute("RelativeTo") == QLatin1String("Page");
    pattern->matrix = Values::matrix(element.attribute("CTM"));
    pattern->alpha = alphaOf(colour);
    pattern->cell = m_readCell(*content);
    return std::shared_ptr<const Pattern>(pattern);
}

Paint ColourReader::without(const XmlElement &colour, const QString &kind) const
{
    ++m_unsupported[kind];
    return colour.attribute("Value").isEmpty() ? Paint(QBrush(Qt::NoBrush)) : flat(colour);
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
    colour.setAlphaF(float(alphaOf(element)));
    return colour;
}

QColor ColourReader::colourOf(const QVector<qreal> &values, const Space &space) const
{
    const qreal most = std::pow(2, space.bits) - 1;
    const auto part = [&](int i) { return float(std::clamp(values.value(i) / most, 0.0, 1.0)); };
    // A value with another number of components than its space is read by that number.
    if (values.size() == 1 && (space.type == QLatin1String("GRAY") || space.palette.isEmpty()))
        return QColor::fromRgbF(part(0), part(0), part(0));
    const bool isCmyk = values.isEmpty() && space.type == QLatin1String("CMYK");
    if (values.size() == 4 || isCmyk)
        return QColor::fromCmykF(part(0), part(1), part(2), part(3)).toRgb();
    return QColor::fromRgbF(part(0), part(1), part(2));
}

} // namespace Ofd
