#include "toolbar/widgets/FieldKeyFilter.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>

FieldKeyFilter::FieldKeyFilter(QLineEdit *field)
    : QObject(field)
{
    field->installEventFilter(this);
}

bool FieldKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field || event->type() != QEvent::KeyPress)
        return false;

    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape)
        return leave(field);
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    return isReturn && field->hasAcceptableInput() && enter(field);
}

bool FieldKeyFilter::leave(QLineEdit *field)
{
    const auto *window = qobject_cast<QMainWindow *>(field->window());
    QWidget *document = window ? window->centralWidget() : nullptr;
    if (!document)
        return false;
    document->setFocus(Qt::OtherFocusReason);
    return true;
}

bool FieldKeyFilter::enter(QLineEdit *field)
{
    const QPointer<QLineEdit> guarded(field);
    Q_EMIT field->returnPressed();
    if (guarded)
        Q_EMIT guarded->editingFinished();
    return true;
}
