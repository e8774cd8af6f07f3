// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Der.h"

#include "ofd/Fault.h"
#include "ofd/Wording.h"

#include <QStringList>

namespace Ofd {

namespace {

constexpr int mostChildren = 4096;
constexpr int mostIdentifierBytes = 64;
constexpr int highTag = 0x1F;
constexpr int longLength = 0x80;
constexpr int mostLengthBytes = 4;
/** Years of two digits below it belong to this century. */
constexpr int firstYearOfLastCentury = 50;

Fault damage()
{
    return Fault{Wording::tr("签名数据已损坏。")};
}

} // namespace

Der::Der(const QByteArray &bytes, int start, int limit)
    : m_bytes(bytes)
    , m_start(start)
    , m_content(start + 2)
{
    if (limit - start < 2)
        throw damage();
    m_tag = quint8(bytes.at(start));
    if ((m_tag & highTag) == highTag)
        throw damage();
    const int length = readLength(limit);
    m_end = m_content + length;
}

int Der::readLength(int limit)
{
    const int first = quint8(m_bytes.at(m_start + 1));
    quint64 length = quint64(first);
    if (first >= longLength) {
        const int count = first - longLength;
        // A count of nothing announces an end mark, which DER does not have.
        if (count == 0 || count > mostLengthBytes || count > limit - m_content)
            throw damage();
        length = 0;
        for (int i = 0; i < count; ++i)
            length = length << 8 | quint8(m_bytes.at(m_content++));
    }
    if (length > quint64(limit - m_content))
        throw damage();
    return int(length);
}

void Der::expect(Tag tag) const
{
    if (m_tag != tag)
        throw damage();
}

QVector<Der> Der::children() const
{
    QVector<Der> children;
    for (int start = m_content; start < m_end; start = children.last().m_end) {
        if (children.size() >= mostChildren)
            throw damage();
        children.append(Der(m_bytes, start, m_end));
    }
    return children;
}

QByteArray Der::octets() const
{
    expect(OctetString);
    return content();
}

QByteArray Der::bits() const
{
    expect(BitString);
    const QByteArray octets = content();
    // The first octet is the number of unused bits at the end.
    if (!octets.startsWith('\0'))
        throw damage();
    return octets.mid(1);
}

QString Der::identifier() const
{
    expect(ObjectIdentifier);
    const QByteArray octets = content();
    if (octets.size() > mostIdentifierBytes)
        throw damage();
    QStringList numbers;
    quint64 number = 0;
    for (const char octet : octets) {
        number = number << 7 | (quint8(octet) & 0x7F);
        if (quint8(octet) & 0x80)
            continue;
        if (numbers.isEmpty()) {
            const quint64 root = qMin(number / 40, quint64(2));
            numbers.append(QString::number(root));
            number -= root * 40;
        }
        numbers.append(QString::number(number));
        number = 0;
    }
    return numbers.join(QChar(u'.'));
}

QDateTime Der::time() const
{
    QString digits = text();
    const bool isUniversal = digits.endsWith(QChar(u'Z'));
    if (m_tag == UtcTime) {
        const bool isRecent = digits.left(2).toInt() < firstYearOfLastCentury;
        digits.prepend(isRecent ? QLatin1String("20") : QLatin1String("19"));
    }
    QDateTime time = QDateTime::fromString(digits.left(14), QStringLiteral("yyyyMMddHHmmss"));
    if (isUniversal)
        time.setTimeSpec(Qt::UTC);
    return time;
}

} // namespace Ofd
