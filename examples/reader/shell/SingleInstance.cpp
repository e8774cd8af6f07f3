// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/SingleInstance.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

namespace {

constexpr QChar separator(u'\0'); ///< The only character that no path contains.
constexpr int patience = 2000;    ///< In milliseconds.
constexpr QDataStream::Version streamVersion = QDataStream::Qt_5_15;
/** Begins a message; another layout of messages needs another number. */
constexpr quint32 greeting = 0x4F464431;

QString socketPath(const QString &key)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty() || !QFileInfo(folder).isWritable())
        return QString();
    // The length of the path of a socket is limited. A window on another display helps nobody.
    const QByteArray all =
        key.toUtf8() + '\n' + qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY");
    const QByteArray hash = QCryptographicHash::hash(all, QCryptographicHash::Sha256);
    return folder + QStringLiteral("/mrtoolbar-reader-")
           + QString::fromLatin1(hash.toHex().left(16));
}

} // namespace

SingleInstance::SingleInstance(const QString &key, QObject *parent)
    : QObject(parent)
    , m_path(socketPath(key))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        QLocalSocket *socket = m_server.nextPendingConnection();
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { receive(socket); });
        receive(socket); // What came before the connection above.
    });
}

bool SingleInstance::handOver(const QStringList &files)
{
    if (m_path.isEmpty())
        return false;
    // Of two programs that start together, the second one is to find the first.
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(patience))
        return false;
    const Answer answer = send(files);
    if (answer == Nobody)
        listen();
    return answer == Taken;
}

SingleInstance::Answer SingleInstance::send(const QStringList &files) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(patience))
        return socket.error() == QLocalSocket::SocketTimeoutError ? Silent : Nobody;
    QDataStream stream(&socket);
    stream.setVersion(streamVersion);
    stream << greeting << files.join(separator).toUtf8();
    return socket.waitForBytesWritten(patience) && socket.waitForReadyRead(patience) ? Taken
                                                                                     : Silent;
}

void SingleInstance::listen()
{
    // Nobody answers there, so it is what a program that crashed has left.
    QLocalServer::removeServer(m_path);
    m_server.listen(m_path);
}

void SingleInstance::receive(QLocalSocket *socket)
{
    quint32 begin = 0;
    // Not a list, whose announced length would be believed.
    QByteArray paths;
    QDataStream stream(socket);
    stream.setVersion(streamVersion);
    stream.startTransaction();
    stream >> begin >> paths;
    if (begin != 0 && begin != greeting)
        return socket->abort();
    if (!stream.commitTransaction())
        return;
    socket->write("\n");
    socket->flush();
    socket->disconnectFromServer();
    Q_EMIT filesHandedOver(
        QString::fromUtf8(paths.constData(), paths.size()).split(separator, Qt::SkipEmptyParts));
}
