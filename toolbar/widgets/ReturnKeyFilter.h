#pragma once

#include <QObject>

class QLineEdit;

/**
 * Lets whoever hears returnPressed() delete the field. The toolkit's own handling of the key goes
 * on to use the field after the signal.
 */
class ReturnKeyFilter : public QObject
{
public:
    /** Watches @p field, which owns the filter. */
    explicit ReturnKeyFilter(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
