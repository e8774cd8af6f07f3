// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/PageFieldWatcher.h"

#include "reach/ToolBarReach.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>

#include <limits>

namespace {

/** The page of a text such as "7/12"; the largest number for one that is too long. */
int pageOf(const QString &text)
{
    const QString digits = text.section(QChar(u'/'), 0, 0);
    bool isNumber = false;
    const int page = digits.toInt(&isNumber);
    return isNumber || digits.isEmpty() ? page : std::numeric_limits<int>::max();
}

} // namespace

PageFieldWatcher::PageFieldWatcher(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
}

void PageFieldWatcher::follow()
{
    const QList<QLineEdit *> fields = ToolBarReach::pageFields(*m_window);
    for (QLineEdit *field : fields)
        field->installEventFilter(this);
}

bool PageFieldWatcher::eventFilter(QObject *watched, QEvent *event)
{
    const auto *field = qobject_cast<const QLineEdit *>(watched);
    if (field && event->type() == QEvent::FocusOut)
        Q_EMIT left();
    if (field && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            Q_EMIT entered(pageOf(field->text()));
    }
    return QObject::eventFilter(watched, event);
}
