// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/FileWatcher.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>

namespace {

// Editors truncate a file before they write it, and some write it in several steps.
constexpr std::chrono::milliseconds settleTime(150);
constexpr std::chrono::milliseconds returnTime(400);

} // namespace

FileWatcher::FileWatcher(const QString &path, QObject *parent)
    : QObject(parent)
    , m_path(QFileInfo(path).absoluteFilePath())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FileWatcher::look);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this,
            [this] { m_timer.start(settleTime); });
}

void FileWatcher::start()
{
    look();
}

void FileWatcher::look()
{
    // QFileSystemWatcher watches the inode, which may have been replaced. So the path is added
    // again each time, before the file is read, so that no change in between is missed.
    m_watcher.removePath(m_path);
    if (!m_watcher.addPath(m_path))
        m_timer.start(returnTime); // The watcher does not report that a missing file returns.

    const Reading now = read();
    if (m_last && m_last->content == now.content && m_last->fault == now.fault)
        return;
    m_last = now;
    Q_EMIT fileRead(now.content, now.fault);
}

FileWatcher::Reading FileWatcher::read() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {QByteArray(), file.errorString()};
    Reading reading{file.readAll(), QString()};
    if (file.error() != QFileDevice::NoError)
        reading.fault = file.errorString();
    return reading;
}
