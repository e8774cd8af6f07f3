// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/LanguageFollower.h"

#include <QEvent>
#include <QWidget>

LanguageFollower::LanguageFollower(QWidget *widget, const std::function<void()> &showTexts)
    : QObject(widget)
    , m_showTexts(showTexts)
{
    widget->installEventFilter(this);
}

void LanguageFollower::attach(QWidget *widget, const std::function<void()> &showTexts)
{
    showTexts();
    new LanguageFollower(widget, showTexts);
}

bool LanguageFollower::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_showTexts();
    return QObject::eventFilter(watched, event);
}
