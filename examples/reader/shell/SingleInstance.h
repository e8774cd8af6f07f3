// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

class QLocalSocket;

/**
 * The one program of a user that shows documents: a second start hands its files to it.
 *
 * They meet at a socket in the user's own runtime folder, to which nobody else has access.
 */
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /** @param key Programs with different keys know nothing of each other. */
    explicit SingleInstance(const QString &key, QObject *parent = nullptr);

    /**
     * Hands absolute paths to the program that runs, and returns whether that has them. If there is
     * none, this program becomes the one that later starts find. A program that does not answer is
     * left alone.
     */
    bool handOver(const QStringList &files);

Q_SIGNALS:
    /** Another start has handed over its files; there may be none. */
    void filesHandedOver(const QStringList &files);

private:
    enum Answer
    {
        Nobody,
        Silent,
        Taken
    };

    Answer send(const QStringList &files) const;
    void listen();
    void receive(QLocalSocket *socket);

    const QString m_path; ///< Of the socket; empty without a folder of the user.
    QLocalServer m_server;
};
