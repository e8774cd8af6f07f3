// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/HostAnswer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace {

int pendingAnswers = 0;

QList<QPointer<QWidget>> &keptWidgets()
{
    static QList<QPointer<QWidget>> widgets;
    return widgets;
}

} // namespace

HostAnswer::HostAnswer()
{
    ++pendingAnswers;
}

HostAnswer::~HostAnswer()
{
    if (--pendingAnswers > 0)
        return;

    // Not before the last answer: deleteLater() inside a nested event loop acts in that loop.
    const QList<QPointer<QWidget>> widgets = std::exchange(keptWidgets(), {});
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget)
            widget->deleteLater();
    }
}

bool HostAnswer::isPending()
{
    return pendingAnswers > 0;
}

void HostAnswer::deleteWhenOver(QWidget *widget)
{
    widget->setParent(nullptr, widget->windowFlags());
    if (isPending())
        keptWidgets().append(widget);
    else
        widget->deleteLater();
}

void HostAnswer::postponeDeletion(QWidget *widget)
{
    if (!isPending())
        return;
    QCoreApplication::removePostedEvents(widget, QEvent::DeferredDelete);
    deleteWhenOver(widget);
}
