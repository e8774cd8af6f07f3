// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/FieldKeyFilter.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>

namespace {

/** The nearest one, which is no window of its own where the host is part of another program. */
const QMainWindow *mainWindowOf(const QWidget *widget)
{
    const QMainWindow *mainWindow = nullptr;
    for (; widget && !mainWindow; widget = widget->parentWidget())
        mainWindow = qobject_cast<const QMainWindow *>(widget);
    return mainWindow;
}

} // namespace

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

    if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
        return leave(field);
    return isReturn(*event) && field->hasAcceptableInput() && enter(field);
}

bool FieldKeyFilter::isReturn(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool FieldKeyFilter::leave(QLineEdit *field)
{
    const QMainWindow *mainWindow = mainWindowOf(field);
    QWidget *document = mainWindow ? mainWindow->centralWidget() : nullptr;
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
