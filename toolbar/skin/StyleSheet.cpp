// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/StyleSheet.h"

#include "toolbar/QtCompat.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
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

QString StyleSheet::withLookOf(QString sheet, QLatin1String button, QLatin1String other)
{
    const QRegularExpression selector(QStringLiteral("(QPushButton#%1([:\\w-]*))").arg(button));
    return sheet.replace(selector, QStringLiteral("QPushButton#%1\\2,\\1").arg(other));
}

QString StyleSheet::withoutFonts(QString sheet)
{
    static const QRegularExpression font(QStringLiteral("font-(family|size)\\s*:[^;}]*;?"));
    return sheet.remove(font);
}

QString StyleSheet::forTouch(QString sheet, int target, float factor)
{
    // The sheet is in lengths at 96 dpi, which are rounded when they are scaled; what has to fit
    // into what is decided in pixels, and rounded up.
    const auto atDesign = [factor](int pixels) {
        return static_cast<int>(std::ceil(static_cast<float>(pixels) / factor));
    };
    const auto inPixels = [factor](int length) {
        return static_cast<int>(std::floor(static_cast<float>(length) * factor + 0.5F));
    };
    constexpr int leastLine = 38;
    constexpr int gap = 2;           // Between the buttons of a group, in pixels.
    constexpr int frames = 4;        // Of a group's menu button, above and below, in pixels.
    constexpr int iconAndText = 50;  // Of a button, in the middle of a row.
    constexpr int arrowAboveEnd = 6; // Of the row.
    constexpr int aroundRow = 4;     // By which a page is higher.

    const int side = atDesign(target);
    const int framed = atDesign(inPixels(side) - frames);
    const int row = atDesign(2 * std::max(inPixels(side), inPixels(framed) + frames) + gap);
    const int padding = std::max(0, (row - iconAndText) / 2);
    sheet.replace(QLatin1String("[TargetLine]"), QString::number(std::max(side, leastLine)));
    sheet.replace(QLatin1String("[TargetRow]"), QString::number(row));
    sheet.replace(QLatin1String("[TargetPage]"), QString::number(row + aroundRow));
    sheet.replace(QLatin1String("[TargetPadding]"), QString::number(padding));
    sheet.replace(QLatin1String("[TargetArrow]"), QString::number(padding + arrowAboveEnd));
    sheet.replace(QLatin1String("[TargetContent]"), QString::number(row - 2 * padding - gap));
    sheet.replace(QLatin1String("[TargetFramed]"), QString::number(framed));
    return sheet.replace(QLatin1String("[Target]"), QString::number(side));
}
