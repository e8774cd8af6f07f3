// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/ZoomText.h"

#include "toolbar/description/Names.h"

#include <QRegularExpression>

namespace {

constexpr int leastPercent = 10;
constexpr int mostPercent = 6400;

bool isDigit(const QString &text, qsizetype position)
{
    return position >= 0 && position < text.size() && text.at(position) >= QLatin1Char('0')
           && text.at(position) <= QLatin1Char('9');
}

} // namespace

std::optional<QString> ZoomText::number(const QString &typed)
{
    bool hasPoint = false;
    qsizetype length = 0;
    for (; length < typed.size(); ++length) {
        if (isDigit(typed, length))
            continue;
        if (typed.at(length) != QLatin1Char('.') || hasPoint)
            break;
        if (!isDigit(typed, length - 1) || !isDigit(typed, length + 1))
            return std::nullopt;
        hasPoint = true;
    }
    if (length == 0)
        return std::nullopt;
    return typed.left(length);
}

QString ZoomText::clamped(const QString &number)
{
    // As a float, what lies just beyond a limit would be the limit itself.
    const double percent = number.toDouble();
    if (percent > mostPercent)
        return QString::number(mostPercent);
    if (percent < leastPercent)
        return QString::number(leastPercent);
    return number;
}

QString ZoomText::entry(const QString &number)
{
    return number + QLatin1Char('%');
}

QString ZoomText::mode(const QString &number)
{
    return Prefix::zoomMode + number + QLatin1Char('p');
}

QString ZoomText::numberOfMode(const QString &mode)
{
    return mode.mid(Prefix::zoomMode.size()).chopped(mode.size() > Prefix::zoomMode.size() ? 1 : 0);
}

std::optional<float> ZoomText::percentage(const QString &mode)
{
    const QString lowered = mode.toLower();
    if (!lowered.endsWith(QLatin1Char('p')))
        return std::nullopt;

    bool isNumber = false;
    const float percent = numberOfMode(lowered).toFloat(&isNumber);
    return isNumber ? std::optional<float>(percent) : std::nullopt;
}

bool ZoomText::isInvalid(const QString &typed)
{
    static const QRegularExpression ideographs(QStringLiteral("[\\x{4e00}-\\x{9fa5}]+"));
    static const QRegularExpression letters(QStringLiteral("[a-zA-Z_=+]+"));
    return typed.contains(ideographs)
           || (!typed.contains(QLatin1Char(' ')) && typed.contains(letters));
}
