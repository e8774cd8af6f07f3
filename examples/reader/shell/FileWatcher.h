// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <optional>

/** Reads a file, and again whenever it has been saved, in whichever way an editor does that. */
class FileWatcher : public QObject
{
    Q_OBJECT

public:
    explicit FileWatcher(const QString &path, QObject *parent = nullptr);

    /** Reads the file for the first time, before returning. */
    void start();

Q_SIGNALS:
    /**
     * The file has another content than before, or went, or came back.
     *
     * @param fault why there is no content; empty if there is.
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
