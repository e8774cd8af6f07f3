// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Permissions.h"

namespace Ofd {

namespace {

bool isAllowed(const XmlElement &permissions, const char *name)
{
    const QString value = permissions.childText(name);
    return value.compare(QLatin1String("false"), Qt::CaseInsensitive)
           && value != QLatin1String("0");
}

QDateTime timeOf(const XmlElement &period, const char *name)
{
    return QDateTime::fromString(period.attribute(name), Qt::ISODate);
}

} // namespace

Permissions Permissions::of(const XmlElement &document)
{
    Permissions result;
    const XmlElement *permissions = document.child("Permissions");
    if (!permissions)
        return result;
    result.mayEdit = isAllowed(*permissions, "Edit");
    result.mayAnnotate = isAllowed(*permissions, "Annot");
    result.mayExport = isAllowed(*permissions, "Export");
    result.maySign = isAllowed(*permissions, "Signature");
    result.mayAddWatermark = isAllowed(*permissions, "Watermark");
    if (const XmlElement *printing = permissions->child("Print")) {
        result.mayPrint = printing->flag("Printable", true);
        bool isNumber = false;
        const int copies = printing->attribute("Copies").toInt(&isNumber);
        result.mostCopies = isNumber ? copies : -1;
        result.mayPrint = result.mayPrint && result.mostCopies != 0;
    }
    if (const XmlElement *period = permissions->child("ValidPeriod")) {
        result.validFrom = timeOf(*period, "StartDate");
        result.validUntil = timeOf(*period, "EndDate");
        // A date without a time includes its whole day.
        if (!period->attribute("EndDate").contains(QChar(u'T')) && result.validUntil.isValid())
            result.validUntil = result.validUntil.addDays(1).addSecs(-1);
    }
    return result;
}

} // namespace Ofd
