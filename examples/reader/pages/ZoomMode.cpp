// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/ZoomMode.h"

#include <QMap>

#include <algorithm>
#include <array>

namespace {

constexpr qreal smallestPercent = 10;
constexpr qreal largestPercent = 6400;
constexpr std::array<int, 14> steps = {10,  25,  50,  75,   100,  125,  150,
                                       200, 400, 800, 1600, 2400, 3200, 6400};
const QString original = QStringLiteral("vzmode_original");
const QLatin1String prefix("vzmode_");
const QLatin1String percentEnd("p");

const QMap<QString, ZoomMode::Kind> &kinds()
{
    static const QMap<QString, ZoomMode::Kind> kinds = {
        {original, ZoomMode::Percent},
        {QStringLiteral("vzmode_fitpage"), ZoomMode::FitPage},
        {QStringLiteral("vzmode_fitwidth"), ZoomMode::FitWidth},
        {QStringLiteral("vzmode_fitheight"), ZoomMode::FitHeight},
    };
    return kinds;
}

} // namespace

ZoomMode::ZoomMode(qreal percent)
    : m_percent(std::clamp(percent, smallestPercent, largestPercent))
    , m_name(prefix + QString::number(m_percent) + percentEnd)
{
}

ZoomMode ZoomMode::fromName(const QString &name)
{
    ZoomMode mode;
    if (kinds().contains(name)) {
        mode.m_kind = kinds().value(name);
        mode.m_percent = 100;
        mode.m_name = name;
        return mode;
    }
    if (!name.startsWith(prefix) || !name.endsWith(percentEnd))
        return mode;
    bool isNumber = false;
    const qreal percent =
        name.mid(prefix.size(), name.size() - prefix.size() - 1).toDouble(&isNumber);
    return isNumber && percent > 0 ? ZoomMode(percent) : mode;
}

QStringList ZoomMode::names()
{
    return kinds().keys();
}

QString ZoomMode::knownName(const QString &other) const
{
    if (m_kind == Percent)
        return m_percent == 100 ? original : other;
    return m_name;
}

ZoomMode ZoomMode::next(qreal percent, bool larger)
{
    // The zoom of a fitted page may be nearly that of a step, which then counts as reached.
    constexpr qreal hair = 0.5;
    if (larger) {
        for (const int step : steps) {
            if (step > percent + hair)
                return ZoomMode(step);
        }
        return ZoomMode(largestPercent);
    }
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        if (*step < percent - hair)
            return ZoomMode(*step);
    }
    return ZoomMode(smallestPercent);
}
