// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <optional>

/** Reads a file, and again whenever an editor has saved it, in place or by replacing it. */
class FileWatcher : public QObject
{
    Q_OBJECT

public:
    explicit FileWatcher(const QString &path, QObject *parent = nullptr);

    /** Reads the file and emits fileRead() before it returns. */
    void start();

Q_SIGNALS:
    /**
     * The content of the file has changed, or the file was removed or created.
     *
     * @param fault Why the file cannot be read; empty if it can.
     */
    void fileRead(const QByteArray &content, const QString &fault);

private:
    struct Reading
    {
        QByteArray content;
        QString fault;
    };

    void look();
    Reading read() const;

    const QString m_path;
    std::optional<Reading> m_last;
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
};
