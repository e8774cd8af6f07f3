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

QString MarkEntry::refusalOf(const Mark &mark)
{
    return mark.isReadOnly
               ? QCoreApplication::translate("MarkEntry", "这条批注是只读的，不能编辑或删除")
               : QString();
}

QString MarkEntry::textOf(const Mark &mark)
{
    const QString place =
        mark.page == everyPage
            ? QCoreApplication::translate("MarkEntry", "每一页")
            : QCoreApplication::translate("MarkEntry", "第 %1 页").arg(mark.page + 1);
    const QChar gap = u'　';
    QStringList lines = {place + gap + kindOf(mark)};
    if (!mark.isVisible)
        lines.first() += gap + QCoreApplication::translate("MarkEntry", "不可见");
    if (mark.isReadOnly)
        lines.first() += gap + QCoreApplication::translate("MarkEntry", "只读");
    QStringList origin = {mark.creator.simplified().left(mostCharacters),
                          mark.date.toString(Qt::ISODate)};
    origin.removeAll(QString());
    lines.append(origin.join(gap));
    lines.append(mark.text.simplified().left(mostCharacters));
    lines.removeAll(QString());
    return lines.join(QChar(u'\n'));
}
