#pragma once

#include <QObject>

class QLineEdit;

/**
 * Handles two keys of a field. Escape gives the focus back to the document. Return is handled so
 * that whoever hears returnPressed() may delete the field; the toolkit goes on to use it.
 */
class FieldKeyFilter : public QObject
{
public:
    /** Watches @p field, which owns the filter. */
    explicit FieldKeyFilter(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static bool leave(QLineEdit *field);
    static bool enter(QLineEdit *field);
};
