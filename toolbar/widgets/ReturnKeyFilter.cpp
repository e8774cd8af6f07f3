#include "toolbar/widgets/ReturnKeyFilter.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

ReturnKeyFilter::ReturnKeyFilter(QLineEdit *field)
    : QObject(field)
{
    field->installEventFilter(this);
}

bool ReturnKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;

    const int key = static_cast<QKeyEvent *>(event)->key();
    const QPointer<QLineEdit> field = qobject_cast<QLineEdit *>(watched);
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isReturn || !field || !field->hasAcceptableInput())
        return false;

    Q_EMIT field->returnPressed();
    if (field)
        Q_EMIT field->editingFinished();
    return true;
}
