// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpressionValidator>

class QLineEdit;

/**
 * Lets only a page number be typed, with or without "/" and a total behind it: "7", "7/12". A page
 * other than 0 makes it acceptable.
 *
 * Any other text that a program sets is shown as it is. The user can delete it or add digits to it;
 * it does not switch the rules off.
 */
class PageValidator : public QRegularExpressionValidator
{
public:
    /** Watches @p field, which owns the validator. */
    explicit PageValidator(QLineEdit *field);

    State validate(QString &input, int &position) const override;

private:
    State validatePage(const QString &input) const;
    void takeOver(const QString &text);

    QLineEdit *m_field;
    QString m_shownText;
};
