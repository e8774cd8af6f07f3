// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Screenshot.h"

#include <QImageWriter>
#include <QWidget>
#include <QWindow>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds pause(150);
constexpr int mostLooks = 100;

} // namespace

Screenshot::Screenshot(QWidget *window, const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_fileName(fileName)
{
    connect(&m_timer, &QTimer::timeout, this, &Screenshot::look);
    m_timer.start(pause);
}

void Screenshot::look()
{
    const QWindow *handle = m_window->windowHandle();
    const bool isOnScreen = handle && handle->isExposed();
    const QImage now = isOnScreen ? m_window->grab().toImage() : QImage();
    if (++m_looks > mostLooks) {
        m_timer.stop();
        Q_EMIT failed(QStringLiteral("the window does not settle"));
        return;
    }
    if (now.isNull() || now != m_last) {
        m_last = now;
        return;
    }
    m_timer.stop();
    QImageWriter writer(m_fileName, "png");
    if (writer.write(now))
        Q_EMIT saved();
    else
        Q_EMIT failed(QStringLiteral("%1: %2").arg(m_fileName, writer.errorString()));
}
