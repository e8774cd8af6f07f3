// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/SafeFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int longestName = 60;
constexpr int longestSuffix = 10;

bool isForbidden(QChar c)
{
    static const QString forbidden = QStringLiteral("<>:\"|?*");
    // Characters that change the direction could make a program look like a picture.
    return !c.isPrint() || c.category() == QChar::Other_Format || forbidden.contains(c);
}

} // namespace

QString SafeFile::nameFor(const QString &name)
{
    static const QRegularExpression separator(QStringLiteral("[/\\\\]"));
    QString last = name.section(separator, -1);
    for (QChar &c : last) {
        if (isForbidden(c) && !c.isSurrogate())
            c = u'_';
    }
    last = last.trimmed();
    while (last.startsWith(QChar(u'.')))
        last.remove(0, 1);
    const QFileInfo parts(last);
    const QString suffix = parts.suffix().left(longestSuffix);
    const QString base = suffix.isEmpty() ? last : parts.completeBaseName();
    const QString kept =
        base.isEmpty() ? QCoreApplication::translate("SafeFile", "附件") : base.left(longestName);
    return suffix.isEmpty() ? kept : kept + QChar(u'.') + suffix;
}

bool SafeFile::isHarmless(const QString &name, const QByteArray &content)
{
    static const QSet<QString> harmless = {
        QStringLiteral("text/plain"),
        QStringLiteral("text/csv"),
        QStringLiteral("text/xml"),
        QStringLiteral("application/xml"),
        QStringLiteral("application/json"),
        QStringLiteral("application/pdf"),
        QStringLiteral("application/ofd"),
        QStringLiteral("application/rtf"),
        QStringLiteral("application/zip"),
        QStringLiteral("application/msword"),
        QStringLiteral("application/vnd.ms-excel"),
        QStringLiteral("application/vnd.ms-powerpoint"),
    };
    static const QStringList families = {
        QStringLiteral("audio/"), QStringLiteral("video/"), QStringLiteral("image/"),
        QStringLiteral("application/vnd.openxmlformats-officedocument."),
        QStringLiteral("application/vnd.oasis.opendocument.")};
    const QMimeDatabase types;
    const auto isIn = [](const QString &type) {
        // A drawing of this type may contain a script.
        if (type == QLatin1String("image/svg+xml"))
            return false;
        for (const QString &family : families) {
            if (type.startsWith(family))
                return true;
        }
        return harmless.contains(type);
    };
    // The desktop chooses by the name, and what runs it may look at the content.
    const QString byContent = types.mimeTypeForData(content).name();
    const bool isPlain = byContent == QLatin1String("application/octet-stream")
                         || byContent == QLatin1String("application/x-ole-storage")
                         || byContent == QLatin1String("application/x-zerosize");
    return isIn(types.mimeTypeForFileNameAndData(name, content).name())
           && isIn(types.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name())
           && (isPlain || isIn(byContent));
}
