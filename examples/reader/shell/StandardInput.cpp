// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/StandardInput.h"

#include "ofd/Limits.h"

#include <QFile>

#include <cstdio>

QString StandardInput::save(QString *error)
{
    QFile input;
    QFile file(m_folder.filePath(QStringLiteral("stdin.ofd")));
    if (!input.open(stdin, QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly)) {
        *error = QStringLiteral("standard input: %1").arg(input.errorString());
        return QString();
    }
    constexpr qint64 portion = 1 << 20;
    // One byte more than a document may have is refused with a reason when it is opened.
    while (file.size() <= Ofd::Limits::archiveBytes) {
        const QByteArray bytes = input.read(portion);
        if (bytes.isEmpty())
            break;
        if (file.write(bytes) != bytes.size() || !file.flush()) {
            *error = QStringLiteral("standard input: %1").arg(file.errorString());
            return QString();
        }
    }
    return file.fileName();
}
