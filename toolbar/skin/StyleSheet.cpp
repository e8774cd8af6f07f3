// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/StyleSheet.h"

#include "toolbar/QtCompat.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <cmath>

QString LoadQss(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();

    QTextStream stream(&file);
    QtCompat::setUtf8(stream);
    return stream.readAll();
}

QString StyleSheet::filled(QString sheet, const QMap<QString, QString> &skin, bool isCompact)
{
    for (auto entry = skin.cbegin(); entry != skin.cend(); ++entry) {
        // An empty key would match between any two characters.
        if (!entry.key().isEmpty())
            sheet.replace(entry.key(), entry.value());
    }
    sheet.replace(QLatin1String("[DefaultFontSize]"), QStringLiteral("%1").arg(12));
    sheet.replace(QLatin1String("[MenuItemHeight]"),
                  QStringLiteral("%1").arg(isCompact ? 3.5 : 4.0));
    sheet.replace(QLatin1String("[MenuItemPaddingLeft]"), QLatin1String("4"));
    return sheet;
}

QString StyleSheet::scaled(const QString &sheet, float factor)
{
    if (sheet.isEmpty() || factor == 1.0F)
        return sheet;

    static const QRegularExpression pixelLength(QStringLiteral("(\\d+)px"),
                                                QRegularExpression::CaseInsensitiveOption);
    QString result;
    result.reserve(sheet.size() + sheet.size() / 16);
    qsizetype copied = 0;
    for (auto matches = pixelLength.globalMatch(sheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const float length = static_cast<float>(match.captured(1).toInt()) * factor;
        result += sheet.mid(copied, match.capturedStart(1) - copied);
        result += QString::number(std::floor(static_cast<double>(length) + 0.5), 'f', 0);
        copied = match.capturedEnd(1);
    }
    return result + sheet.mid(copied);
}
