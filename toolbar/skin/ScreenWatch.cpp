// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/ScreenWatch.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

ScreenWatch::ScreenWatch(QWidget *widget)
    : m_widget(widget)
{
    m_widget->installEventFilter(this);
    followWindow();
}

const QScreen *ScreenWatch::screen() const
{
    return m_screen;
}

bool ScreenWatch::eventFilter(QObject *watched, QEvent *event)
{
    // Shown again, the widget may be in another window.
    if (watched == m_widget && event->type() == QEvent::Show)
        followWindow();
    return false;
}

void ScreenWatch::followWindow()
{
    QWindow *window = m_widget->window()->windowHandle();
    if (window && window != m_window) {
        if (m_window)
            disconnect(m_window, nullptr, this, nullptr);
        m_window = window;
        connect(window, &QWindow::screenChanged, this, &ScreenWatch::followScreen);
    }
    followScreen();
}

void ScreenWatch::followScreen()
{
    QScreen *screen = m_window ? m_window->screen() : m_widget->screen();
    if (!screen || screen == m_screen)
        return;
    if (m_screen)
        disconnect(m_screen, nullptr, this, nullptr);
    m_screen = screen;
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, &ScreenWatch::changed);
    Q_EMIT changed();
}
