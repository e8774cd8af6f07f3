// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

namespace Ofd {

/**
 * One value of a DER encoding: a tag, a length and a content, which may be values again.
 *
 * Only the wanted levels are read, so the depth of an encoding costs nothing. What does not fit
 * into its bytes is refused; all functions throw a Fault.
 */
class Der
{
public:
    enum Tag : quint8
    {
        Integer = 0x02,
        BitString = 0x03,
        OctetString = 0x04,
        ObjectIdentifier = 0x06,
        UtcTime = 0x17,
        Sequence = 0x30,
        Set = 0x31,
        Context0 = 0xA0 ///< "[0]", with a value inside.
    };

    /** The value at the start of the bytes; what follows it is ignored. */
    static Der read(const QByteArray &bytes) { return Der(bytes, 0, int(bytes.size())); }

    quint8 tag() const { return m_tag; }
    /** With tag and length, which is what signatures are about. */
    QByteArray whole() const { return m_bytes.mid(m_start, m_end - m_start); }
    QByteArray content() const { return m_bytes.mid(m_content, m_end - m_content); }
    QVector<Der> children() const;

    QByteArray octets() const;
    /** The octets of a string of whole bits. */
    QByteArray bits() const;
    /** An object identifier with dots. */
    QString identifier() const;
    QString text() const { return QString::fromUtf8(content()); }
    /** Without a time zone it is local time; invalid for another text. */
    QDateTime time() const;

private:
    Der(const QByteArray &bytes, int start, int limit);
    int readLength(int limit);
    void expect(Tag tag) const;

    QByteArray m_bytes; ///< Shared with all values of an encoding.
    int m_start = 0;
    int m_content = 0;
    int m_end = 0;
    quint8 m_tag = 0;
};

} // namespace Ofd
