// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Legibility.h"

#include "toolbar/skin/Contrast.h"

#include <QColor>
#include <QHash>

#include <algorithm>

namespace {

constexpr double disabledText = 3.0;
constexpr double disabledIcon = 2.0;

QHash<QRgb, int> coloursOf(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    return counts;
}

} // namespace

double Legibility::contrastIn(const QImage &picture)
{
    const QHash<QRgb, int> counts = coloursOf(picture);
    QRgb ground = 0;
    for (auto entry = counts.cbegin(); entry != counts.cend(); ++entry) {
        if (entry.value() > counts.value(ground))
            ground = entry.key();
    }
    double highest = 1;
    for (auto entry = counts.cbegin(); entry != counts.cend(); ++entry)
        highest = std::max(highest, Contrast::ratio(QColor(entry.key()), QColor(ground)));
    return highest;
}

void Legibility::addText(const QString &state, const QString &what, const QImage &picture)
{
    add(state + " text", what, picture, state == disabled ? disabledText : m_leastText);
}

void Legibility::addIcon(const QString &state, const QString &what, const QImage &picture)
{
    add(state + " icon", what, picture, state == disabled ? disabledIcon : m_leastIcon);
}

void Legibility::add(const QString &state, const QString &what, const QImage &picture, double least)
{
    ++m_count;
    const double contrast = contrastIn(picture);
    Lowest &lowest = m_lowest[state];
    if (contrast < lowest.contrast)
        lowest = {contrast, what};
    if (contrast < least) {
        m_faults.append(QStringLiteral("%1, %2: %3:1").arg(what, state).arg(contrast, 0, 'f', 2));
        picture.save(QStringLiteral("illegible_%1.png").arg(m_faults.size()));
    }
}

QString Legibility::lowest() const
{
    QStringList lines;
    for (const auto &[state, lowest] : m_lowest) {
        lines.append(QStringLiteral("%1 %2 (%3)")
                         .arg(state)
                         .arg(lowest.contrast, 0, 'f', 1)
                         .arg(lowest.what));
    }
    return lines.join(QStringLiteral(", "));
}
