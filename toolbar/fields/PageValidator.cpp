// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/PageValidator.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

namespace {

constexpr QLatin1Char slash('/');

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

QString withoutDigits(const QString &text)
{
    QString rest;
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(rest), isDigit);
    return rest;
}

/** Whether the one text is the other one with nothing but digits added, whatever it lacks. */
bool addsOnlyDigits(const QString &text, const QString &before)
{
    const QString others = withoutDigits(text);
    const QString otherBefore = withoutDigits(before);
    auto from = otherBefore.cbegin();
    for (const QChar character : others) {
        from = std::find(from, otherBefore.cend(), character);
        if (from == otherBefore.cend())
            return false;
        ++from;
    }
    return true;
}

} // namespace

PageValidator::PageValidator(QLineEdit *field)
    : QRegularExpressionValidator(QRegularExpression(QStringLiteral("^[0-9]*[1-9][0-9]*$")), field)
    , m_field(field)
    , m_shownText(field->text())
{
    connect(field, &QLineEdit::textChanged, this, &PageValidator::takeOver);
}

QValidator::State PageValidator::validate(QString &input, int &position) const
{
    Q_UNUSED(position)
    const State state = validatePage(input);
    return state == Invalid && addsOnlyDigits(input, m_shownText) ? Intermediate : state;
}

QValidator::State PageValidator::validatePage(const QString &input) const
{
    const QString total = input.section(slash, 1);
    if (!std::all_of(total.begin(), total.end(), isDigit))
        return Invalid;
    QString page = input.section(slash, 0, 0);
    int position = 0;
    return QRegularExpressionValidator::validate(page, position);
}

void PageValidator::takeOver(const QString &text)
{
    QString shown = text;
    int position = m_field->cursorPosition();
    const bool isStrange = validate(shown, position) == Invalid;
    m_shownText = text;
    if (!isStrange)
        return;

    // A field whose text its validator found invalid accepts any input from then on, until a valid
    // text is set.
    const QSignalBlocker blocker(m_field);
    m_field->clear();
    m_field->setText(text);
    m_field->setCursorPosition(position);
}
