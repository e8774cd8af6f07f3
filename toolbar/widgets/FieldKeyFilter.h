// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QLineEdit;

/**
 * Handles two keys of a field. Escape gives the focus back to the document. Return is handled so
 * that whoever hears returnPressed() may delete the field; Qt still uses it afterwards.
 */
class FieldKeyFilter : public QObject
{
public:
    /** Watches @p field, which owns the filter. */
    explicit FieldKeyFilter(QLineEdit *field);

    /** Whether the event is a press of Return, on either part of the keyboard. */
    static bool isReturn(const QEvent &event);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static bool leave(QLineEdit *field);
    static bool enter(QLineEdit *field);
};
