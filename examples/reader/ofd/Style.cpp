// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Objects.h"

#include <algorithm>

namespace Ofd {

namespace {

constexpr qreal usualLineWidth = 0.353;
constexpr qreal usualMiterLimit = 3.528;
/** Qt measures dashes in line widths, so a hairline needs a width for them. */
constexpr qreal leastDashUnit = 0.001;
/** In line widths. Qt omits dashes without length, which are dots with round caps. */
constexpr qreal leastDash = 0.01;

template <typename T>
void take(std::optional<T> &own, const std::optional<T> &wider)
{
    if (!own)
        own = wider;
}

} // namespace

Style Style::over(const Style &wider) const
{
    Style style = *this;
    take(style.lineWidth, wider.lineWidth);
    take(style.cap, wider.cap);
    take(style.join, wider.join);
    take(style.miterLimit, wider.miterLimit);
    take(style.dashOffset, wider.dashOffset);
    take(style.dashes, wider.dashes);
    take(style.fill, wider.fill);
    take(style.stroke, wider.stroke);
    return style;
}

QPen Style::pen() const
{
    const qreal width = lineWidth.value_or(usualLineWidth);
    QPen pen(QBrush(Qt::black), width, Qt::SolidLine, cap.value_or(Qt::FlatCap),
             join.value_or(Qt::SvgMiterJoin));
    pen.setMiterLimit(miterLimit.value_or(usualMiterLimit));
    if (!dashes || dashes->isEmpty())
        return pen;
    const qreal unit = std::max(width, leastDashUnit);
    QVector<qreal> pattern;
    for (const qreal length : *dashes)
        pattern.append(std::max(leastDash, length / unit));
    if (pattern.size() % 2)
        pattern += pattern;
    pen.setDashPattern(pattern);
    pen.setDashOffset(dashOffset.value_or(0) / unit);
    return pen;
}

} // namespace Ofd
