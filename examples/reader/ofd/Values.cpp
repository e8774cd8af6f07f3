// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Values.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Wording.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

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

/** The numbers of a text that has exactly so many; without memory that grows, as there are many. */
template <std::size_t count>
std::optional<std::array<qreal, count>> exactly(QStringView text)
{
    std::array<qreal, count> values;
    for (qreal &value : values) {
        if (!toNumber(takeWord(&text), &value))
            return std::nullopt;
    }
    qreal further = 0;
    return toNumber(takeWord(&text), &further) ? std::nullopt : std::make_optional(values);
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
    const auto box = exactly<4>(text);
    return box ? QRectF((*box)[0], (*box)[1], (*box)[2], (*box)[3]) : QRectF();
}

QTransform Values::matrix(const QString &text)
{
    const auto v = exactly<6>(text);
    if (!v)
        return QTransform();
    const QTransform matrix((*v)[0], (*v)[1], (*v)[2], (*v)[3], (*v)[4], (*v)[5]);
    // Computed here, because Qt keeps it without protection and several threads read the matrix.
    matrix.type();
    return matrix;
}

QPointF Values::point(const QString &text, QPointF otherwise)
{
    const auto point = exactly<2>(text);
    return point ? QPointF((*point)[0], (*point)[1]) : otherwise;
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
