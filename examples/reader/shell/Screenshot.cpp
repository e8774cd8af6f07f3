// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/Screenshot.h"

#include "pages/PageView.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>
#include <QWidget>
#include <QWindow>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds betweenLooks(150);
constexpr int mostLooks = 400; // A dense page may take many seconds to be painted.

} // namespace

Screenshot::Screenshot(QWidget *window, const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_fileName(fileName)
{
    connect(&m_timer, &QTimer::timeout, this, &Screenshot::look);
    m_timer.start(betweenLooks);
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
    const auto *view = m_window->findChild<PageView *>();
    if (now.isNull() || now != m_last || (view && view->isVisible() && !view->isSharp())) {
        m_last = now;
        return;
    }
    m_timer.stop();
    // The format follows from the suffix. A file is not left half-written.
    QSaveFile file(m_fileName);
    QImageWriter writer(&file, QFileInfo(m_fileName).suffix().toLatin1());
    if (!file.open(QIODevice::WriteOnly))
        Q_EMIT failed(QStringLiteral("%1: %2").arg(m_fileName, file.errorString()));
    else if (!writer.write(now))
        Q_EMIT failed(QStringLiteral("%1: %2").arg(m_fileName, writer.errorString()));
    else if (!file.commit())
        Q_EMIT failed(QStringLiteral("%1: %2").arg(m_fileName, file.errorString()));
    else
        Q_EMIT saved();
}
