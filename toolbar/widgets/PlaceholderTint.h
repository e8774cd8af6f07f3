// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QLineEdit;

/**
 * Keeps the prompt of a field paler than what is typed there. A style sheet that colours the text
 * of a field gives its prompt the very same colour on Qt 5, so that an empty field looks filled.
 */
class PlaceholderTint : public QObject
{
public:
    /** Watches @p field, which owns the tint. */
    explicit PlaceholderTint(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void apply(QLineEdit *field);
};
