// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/SignedMessage.h"

#include "ofd/Fault.h"
#include "ofd/Wording.h"

namespace Ofd {

namespace {

const QString messageDigest = QStringLiteral("1.2.840.113549.1.9.4");

/** Hands out values one by one and throws a Fault when there are no more. */
class ValueList
{
public:
    explicit ValueList(const Der &parent)
        : m_values(parent.children())
    {
    }

    Der next()
    {
        if (m_next >= m_values.size())
            throw Fault{Wording::tr("签名值的结构不符合标准。")};
        return m_values.at(m_next++);
    }
    std::optional<Der> optional(int tag)
    {
        if (m_next < m_values.size() && m_values.at(m_next).tag() == tag)
            return m_values.at(m_next++);
        return std::nullopt;
    }
    void skip(int count)
    {
        for (int i = 0; i < count; ++i)
            next();
    }

private:
    QVector<Der> m_values;
    int m_next = 0;
};

Der firstOf(const Der &value)
{
    return ValueList(value).next();
}

/** Issuer and serial number, as the signer refers to a certificate. */
QByteArray nameOf(const Der &certificate)
{
    ValueList values(firstOf(certificate));
    values.optional(Der::Context0);
    const QByteArray serial = values.next().whole();
    values.skip(1);
    return values.next().whole() + serial;
}

QByteArray certificateOf(const QByteArray &name, const std::optional<Der> &certificates)
{
    if (!certificates)
        return QByteArray();
    for (const Der &certificate : certificates->children()) {
        if (nameOf(certificate) == name)
            return certificate.whole();
    }
    return QByteArray();
}

std::optional<QByteArray> digestIn(const Der &attributes)
{
    for (const Der &attribute : attributes.children()) {
        ValueList values(attribute);
        if (values.next().identifier() == messageDigest)
            return firstOf(values.next()).content();
    }
    throw Fault{Wording::tr("签名值的结构不符合标准。")};
}

void readSigner(const Der &signer, const std::optional<Der> &certificates, SignedMessage &message)
{
    ValueList values(signer);
    values.skip(1);
    message.made.certificate = certificateOf(values.next().content(), certificates);
    message.digestAlgorithm = firstOf(values.next()).identifier();
    if (const auto attributes = values.optional(Der::Context0)) {
        message.digest = digestIn(*attributes);
        // They are signed as the set that they are, not with the tag of their place.
        message.made.bytes = attributes->whole();
        message.made.bytes[0] = char(Der::Set);
    }
    message.made.algorithm = firstOf(values.next()).identifier();
    message.made.signature = values.next().content();
}

} // namespace

SignedMessage SignedMessage::read(const Der &value)
{
    SignedMessage message;
    ValueList outer(value);
    outer.skip(1);
    ValueList data(firstOf(outer.next()));
    data.skip(2);
    ValueList what(data.next());
    what.skip(1);
    if (const auto content = what.optional(Der::Context0))
        message.content = firstOf(*content).content();
    const auto certificates = data.optional(Der::Context0);
    data.optional(Der::Context0 + 1);
    readSigner(firstOf(data.next()), certificates, message);
    return message;
}

} // namespace Ofd
