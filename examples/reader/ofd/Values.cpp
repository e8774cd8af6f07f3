// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Values.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** Removes the next word from the text and returns it; empty if none is left. */
QStringView takeWord(QStringView *text)
{
    const auto isBlank = [](QChar c) { return c.isSpace() || c == QChar(u','); };
    const auto begin = std::find_if_not(text->begin(), text->end(), isBlank);
    const auto end = std::find_if(begin, text->end(), isBlank);
    *text = QStringView(end, text->end());
    return QStringView(begin, end);
}

bool toNumber(QStringView word, qreal *value)
{
    static const QLocale plain = QLocale::c();
    bool isNumber = false;
    *value = word.startsWith(QChar(u'#')) ? word.mid(1).toString().toInt(&isNumber, 16)
                                          : plain.toDouble(word, &isNumber);
    if (!isNumber || std::isnan(*value))
        return false;
    if (std::abs(*value) > Limits::number)
        throw Fault{Wording::tr("文档中的数值“%1”超出范围。").arg(word.left(24).toString())};
    return true;
}

} // namespace

qreal Values::number(QStringView text, qreal otherwise)
{
    qreal value = 0;
    return toNumber(text.trimmed(), &value) ? value : otherwise;
}

QVector<qreal> Values::numbers(QStringView text)
{
    QVector<qreal> values;
    qreal value = 0;
    while (toNumber(takeWord(&text), &value))
        values.append(value);
    return values;
}

QRectF Values::box(const QString &text)
{
    const QVector<qreal> v = numbers(text);
    return v.size() == 4 ? QRectF(v.at(0), v.at(1), v.at(2), v.at(3)) : QRectF();
}

QTransform Values::matrix(const QString &text)
{
    const QVector<qreal> v = numbers(text);
    if (v.size() != 6)
        return QTransform();
    const QTransform matrix(v.at(0), v.at(1), v.at(2), v.at(3), v.at(4), v.at(5));
    // Computed here, because Qt keeps it without protection and several threads read the matrix.
    matrix.type();
    return matrix;
}

QPointF Values::point(const QString &text, QPointF otherwise)
{
    const QVector<qreal> v = numbers(text);
    return v.size() == 2 ? QPointF(v.at(0), v.at(1)) : otherwise;
}

QVector<qreal> Values::deltas(const QString &text, int most)
{
    QVector<qreal> values;
    QStringView rest(text);
    while (values.size() < most) {
        int times = 1;
        QStringView word = takeWord(&rest);
        if (word == QLatin1String("g")) {
            times = int(number(takeWord(&rest), 0));
            word = takeWord(&rest);
        }
        qreal value = 0;
        if (!toNumber(word, &value))
            break;
        for (; times > 0 && values.size() < most; --times)
            values.append(value);
    }
    return values;
}

} // namespace Ofd
