#pragma once

#include <QRegularExpressionValidator>

class QLineEdit;

/**
 * Lets only a page number be typed, with or without "/" and a total behind it: "7", "7/12". A page
 * other than 0 makes it acceptable.
 *
 * Whatever else is written into the field by a program is shown as it is. The user can take it away
 * and add digits to it, and is not free to type anything just because it stands there.
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
