// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/PageText.h"

namespace {

constexpr QLatin1Char slash('/');
constexpr QLatin1Char blank(' ');

} // namespace

int PageText::entered(const QString &text)
{
    return text.section(slash, 0, 0).toInt();
}

QString PageText::pageOfTotal(int page, int total)
{
    return QStringLiteral("%1/%2").arg(page).arg(total);
}

std::optional<QString> PageText::totalText(const QString &reported)
{
    const auto position = reported.indexOf(slash);
    if (position < 0)
        return std::nullopt;
    return reported.mid(position + 2);
}

QString PageText::withoutTotal(const QString &label, int oldTotal)
{
    QString text = label;
    return text.replace(QString::number(oldTotal), QString(blank));
}

QString PageText::withTotal(const QString &label, int oldTotal, const QString &newTotal)
{
    QString text = label;
    const auto mark = text.indexOf(blank);
    if (mark >= 0)
        return text.replace(mark, 1, newTotal);

    const QString oldNumber = QString::number(oldTotal);
    const QString newNumber = QString::number(newTotal.toInt());
    if (text.contains(oldNumber))
        return text.replace(oldNumber, newNumber);
    return text + newNumber;
}
