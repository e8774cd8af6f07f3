// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Refusal.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace {

QString nameOf(Act act)
{
    switch (act) {
    case Act::Edit:
        return QCoreApplication::translate("Refusal", "编辑");
    case Act::Annotate:
        return QCoreApplication::translate("Refusal", "批注");
    case Act::Export:
        return QCoreApplication::translate("Refusal", "导出");
    case Act::Sign:
        return QCoreApplication::translate("Refusal", "签章");
    case Act::AddWatermark:
        return QCoreApplication::translate("Refusal", "添加水印");
    case Act::Print:
        return QCoreApplication::translate("Refusal", "打印");
    }
    return QString();
}

bool isAllowed(Act act, const Ofd::Permissions &permissions)
{
    switch (act) {
    case Act::Edit:
        return permissions.mayEdit;
    case Act::Annotate:
        return permissions.mayAnnotate;
    case Act::Export:
        return permissions.mayExport;
    case Act::Sign:
        return permissions.maySign;
    case Act::AddWatermark:
        return permissions.mayAddWatermark;
    case Act::Print:
        return permissions.mayPrint;
    }
    return true;
}

/** Outside the period that the author has set, the document can only be read. */
QString refusalByTime(const Ofd::Permissions &permissions)
{
    const QDateTime now = QDateTime::currentDateTime();
    if (permissions.isValidAt(now))
        return QString();
    const bool isEarly = permissions.validFrom.isValid() && now < permissions.validFrom;
    const QDateTime limit = isEarly ? permissions.validFrom : permissions.validUntil;
    const QString text =
        isEarly
            ? QCoreApplication::translate("Refusal", "本文件自 %1 起才有效，此前只能阅读。")
            : QCoreApplication::translate("Refusal", "本文件的有效期到 %1 为止，现在只能阅读。");
    return text.arg(QLocale::c().toString(limit, QStringLiteral("yyyy-MM-dd hh:mm")));
}

} // namespace

QString refusalOf(Act act, const Ofd::Permissions &permissions)
{
    const QString byTime = refusalByTime(permissions);
    if (!byTime.isEmpty())
        return byTime;
    return isAllowed(act, permissions)
               ? QString()
               : QCoreApplication::translate("Refusal", "本文件的作者不允许%1。").arg(nameOf(act));
}

QString refusalsOf(const Ofd::Permissions &permissions)
{
    const QString byTime = refusalByTime(permissions);
    if (!byTime.isEmpty())
        return byTime;
    QStringList names;
    for (const Act act :
         {Act::Edit, Act::Annotate, Act::Export, Act::Sign, Act::AddWatermark, Act::Print}) {
        if (!isAllowed(act, permissions))
            names.append(nameOf(act));
    }
    return names.isEmpty() ? QString()
                           : QCoreApplication::translate("Refusal", "本文件的作者不允许%1。")
                                 .arg(names.join(QCoreApplication::translate("Refusal", "、")));
}
