// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/MarkEntry.h"

#include <QCoreApplication>
#include <QMap>
#include <QStringList>

namespace {

constexpr int mostCharacters = 120;

} // namespace

QString MarkEntry::kindOf(const Mark &mark)
{
    static const QMap<QString, const char *> types = {
        {QStringLiteral("Link"), QT_TRANSLATE_NOOP("MarkEntry", "链接")},
        {QStringLiteral("Path"), QT_TRANSLATE_NOOP("MarkEntry", "图形")},
        {QStringLiteral("Highlight"), QT_TRANSLATE_NOOP("MarkEntry", "高亮")},
        {QStringLiteral("Stamp"), QT_TRANSLATE_NOOP("MarkEntry", "图章")},
        {QStringLiteral("Watermark"), QT_TRANSLATE_NOOP("MarkEntry", "水印")},
    };
    if (mark.kind != MarkKind::Annotation || mark.type.isEmpty())
        return markName(mark.kind);
    const char *name = types.value(mark.type);
    return name ? QCoreApplication::translate("MarkEntry", name) : mark.type.left(mostCharacters);
}

QString MarkEntry::textOf(const Mark &mark)
{
    const QString place =
        mark.page == everyPage
            ? QCoreApplication::translate("MarkEntry", "每一页")
            : QCoreApplication::translate("MarkEntry", "第 %1 页").arg(mark.page + 1);
    const QChar gap = u'　';
    QStringList lines = {place + gap + kindOf(mark)};
    QStringList origin = {mark.creator.simplified().left(mostCharacters),
                          mark.date.toString(Qt::ISODate)};
    origin.removeAll(QString());
    lines.append(origin.join(gap));
    lines.append(mark.text.simplified().left(mostCharacters));
    lines.removeAll(QString());
    return lines.join(QChar(u'\n'));
}
