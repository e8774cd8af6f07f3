#include "Values.h"

#include "Fault.h"
#include "Limits.h"
#include "Wording.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace Ofd {

namespace {

QStringList words(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("[\\s,]+"));
    return text.split(blanks, Qt::SkipEmptyParts);
}

bool toNumber(const QString &word, qreal *value)
{
    bool isNumber = false;
    *value =
        word.startsWith(QChar(u'#')) ? word.mid(1).toInt(&isNumber, 16) : word.toDouble(&isNumber);
    if (!isNumber || std::isnan(*value))
        return false;
    if (std::abs(*value) > Limits::number)
        throw Fault{Wording::tr("文档中的数值“%1”超出范围。").arg(word.left(24))};
    return true;
}

} // namespace

qreal Values::number(const QString &text, qreal otherwise)
{
    qreal value = 0;
    return toNumber(text.trimmed(), &value) ? value : otherwise;
}

QVector<qreal> Values::numbers(const QString &text)
{
    QVector<qreal> values;
    const QStringList parts = words(text);
    for (const QString &part : parts) {
        qreal value = 0;
        if (!toNumber(part, &value))
            break;
        values.append(value);
    }
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
    return QTransform(v.at(0), v.at(1), v.at(2), v.at(3), v.at(4), v.at(5));
}

QPointF Values::point(const QString &text, QPointF otherwise)
{
    const QVector<qreal> v = numbers(text);
    return v.size() == 2 ? QPointF(v.at(0), v.at(1)) : otherwise;
}

QVector<qreal> Values::deltas(const QString &text, int most)
{
    QVector<qreal> values;
    const QStringList parts = words(text);
    for (int i = 0; i < parts.size() && values.size() < most; ++i) {
        int times = 1;
        if (parts.at(i) == QLatin1String("g")) {
            times = int(number(parts.value(i + 1), 0));
            i += 2;
        }
        qreal value = 0;
        if (!toNumber(parts.value(i), &value))
            break;
        for (; times > 0 && values.size() < most; --times)
            values.append(value);
    }
    return values;
}

} // namespace Ofd
