// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/StyleReader.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace Ofd {

namespace {

std::optional<qreal> length(const XmlElement &element, const char *name)
{
    const QVector<qreal> values = Values::numbers(element.attribute(name));
    if (values.isEmpty())
        return std::nullopt;
    return std::max(0.0, values.first());
}

std::optional<Qt::PenCapStyle> cap(const QString &name)
{
    if (name.isEmpty())
        return std::nullopt;
    if (name == QLatin1String("Round"))
        return Qt::RoundCap;
    return name == QLatin1String("Square") ? Qt::SquareCap : Qt::FlatCap;
}

std::optional<Qt::PenJoinStyle> join(const QString &name)
{
    if (name.isEmpty())
        return std::nullopt;
    if (name == QLatin1String("Round"))
        return Qt::RoundJoin;
    return name == QLatin1String("Bevel") ? Qt::BevelJoin : Qt::SvgMiterJoin;
}

std::optional<QVector<qreal>> dashes(const QString &text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    const QVector<qreal> values = Values::numbers(text);
    qreal period = 0;
    bool isNegative = false;
    for (const qreal value : values) {
        period += value;
        isNegative = isNegative || value < 0;
    }
    if (values.size() > Limits::dashes || isNegative || (period > 0 && period < Limits::dashPeriod))
        throw Fault{Wording::tr("虚线样式“%1”超出范围。").arg(text.left(24))};
    // A pattern of length zero is a solid line.
    return period > 0 ? values : QVector<qreal>();
}

} // namespace

void StyleReader::addParameters(const XmlElement &parameters)
{
    const QString id = parameters.attribute("ID");
    m_parameters.insert(id, {own(parameters), parameters.attribute("Relative")});
    m_unresolved.append(id);
}

void StyleReader::resolve()
{
    // Taken first, so that a circle on one page does not stay for the next one.
    const QStringList ids = std::exchange(m_unresolved, {});
    for (const QString &id : ids) {
        QStringList chain;
        QSet<QString> visited;
        for (QString next = id; m_parameters.contains(next);
             next = m_parameters.value(next).relative) {
            if (visited.contains(next))
                throw Fault{Wording::tr("绘制参数“%1”循环引用。").arg(next)};
            visited.insert(next);
            chain.append(next);
        }
        // From the widest one, so that no link of a long chain is followed twice.
        for (int at = int(chain.size()) - 2; at >= 0; --at) {
            Parameters &parameters = m_parameters[chain.at(at)];
            parameters.style = parameters.style.over(m_parameters.value(chain.at(at + 1)).style);
            parameters.relative.clear();
        }
    }
}

Style StyleReader::read(const XmlElement &element, const Style &wider) const
{
    const Style referred = m_parameters.value(element.attribute("DrawParam")).style;
    return own(element).over(referred).over(wider);
}

Style StyleReader::own(const XmlElement &element, const char *stroke) const
{
    Style style;
    style.lineWidth = length(element, "LineWidth");
    style.cap = cap(element.attribute("Cap"));
    style.join = join(element.attribute("Join"));
    style.miterLimit = length(element, "MiterLimit");
    style.dashOffset = length(element, "DashOffset");
    style.dashes = dashes(element.attribute("DashPattern"));
    style.fill = m_colours.read(element, "FillColor");
    style.stroke = m_colours.read(element, stroke);
    return style;
}

} // namespace Ofd
