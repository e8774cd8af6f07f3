// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ValueCheck.h"

#include "ofd/Fault.h"
#include "ofd/Signatures.h"
#include "ofd/Wording.h"

#include <QRegularExpression>

#include <algorithm>

namespace Ofd {

namespace {

QVector<QByteArray> digestsOf(const QByteArray &bytes)
{
    QVector<QByteArray> digests;
    for (const char *name : {"SM3", "SHA1", "SHA256", "SHA384", "SHA512"}) {
        if (const auto digest = Crypto::digest(QLatin1String(name), bytes))
            digests.append(*digest);
    }
    return digests;
}

/** A time in any of the forms that writers use, which differ in what is between the digits. */
QDateTime timeOf(const QString &text)
{
    static const QRegularExpression notDigits(QStringLiteral("\\D"));
    const QString digits = QString(text).remove(notDigits).left(14);
    QDateTime time = QDateTime::fromString(digits, QStringLiteral("yyyyMMddHHmmss"));
    if (text.endsWith(QChar(u'Z')))
        time.setTimeSpec(Qt::UTC);
    return time;
}

/** Whether a seal was made for that certificate, which it has itself or as a digest. */
bool isHeldBy(const Seal &seal, const QByteArray &certificate)
{
    const QVector<QByteArray> digests = digestsOf(certificate);
    return std::any_of(seal.holders.begin(), seal.holders.end(), [&](const Der &holder) {
        if (holder.tag() != Der::Sequence)
            return holder.content() == certificate;
        const QVector<Der> parts = holder.children();
        return !parts.isEmpty() && digests.contains(parts.last().content());
    });
}

} // namespace

SignatureFile::SignatureFile(const Package &package, const QString &path)
    : package(package)
    , path(path)
    , bytes(package.read(path))
    , root(XmlElement::parse(bytes, path))
{
    if (!root.child("SignedInfo"))
        throw Fault{Wording::tr("签名描述文件不完整。")};
}

ValueCheck::ValueCheck(const SignatureFile &file, SignatureResult &result)
    : m_file(file)
    , m_result(result)
{
    m_result.time = timeOf(result.statedTime);
}

QStringList ValueCheck::run()
{
    const QString location = m_file.root.childText("SignedValue");
    const Der value = Der::read(Signatures::readNamed(m_file.package, location, m_file.path));
    const QVector<Der> parts = value.tag() == Der::Sequence ? value.children() : QVector<Der>();
    // Signed data begins with its identifier, and a value with a seal with what was signed.
    if (!parts.isEmpty() && parts.first().tag() == Der::ObjectIdentifier)
        checkMessage(SignedMessage::read(value));
    else if (!parts.isEmpty() && parts.first().tag() == Der::Sequence)
        checkSealed(SealedValue::read(value));
    else
        throw Fault{Wording::tr("签名值中没有证书。")};
    m_ownFiles += {m_file.path, m_file.package.find(m_file.path, location)};
    const Certificate &certificate = *m_result.certificate;
    noteTimes(certificate.validFrom, certificate.validTo,
              Wording::tr("签名时间不在证书的有效期内。"));
    return m_changed;
}

void ValueCheck::checkSealed(const SealedValue &sealed)
{
    m_result.seal = sealed.seal.name;
    if (sealed.time.isValid())
        m_result.time = sealed.time;
    readCertificate(sealed.made);
    if (!isRight(sealed.made, QString()))
        m_changed.append(Wording::tr("签名值"));
    if (!digestsOf(m_file.bytes).contains(sealed.digest))
        m_changed.append(m_file.path);
    if (m_changed.isEmpty())
        checkSeal(sealed.seal, sealed.made.certificate);
}

void ValueCheck::checkSeal(const Seal &seal, const QByteArray &holder)
{
    const Crypto::Outcome outcome = Crypto::verify(seal.made);
    if (outcome == Crypto::Outcome::Wrong)
        m_changed.append(Wording::tr("印章"));
    else if (outcome == Crypto::Outcome::Unknown)
        throw Fault{Wording::tr("无法核对印章制作者的签名。")};
    else if (!isHeldBy(seal, holder))
        throw Fault{Wording::tr("印章不是为签名证书制作的。")};
    compareWithFile(seal);
    noteTimes(seal.validFrom, seal.validTo, Wording::tr("签名时间不在印章的有效期内。"));
}

void ValueCheck::compareWithFile(const Seal &seal)
{
    const XmlElement *file = m_file.information().child("Seal");
    if (!file)
        return;
    const QString location = file->childText("BaseLoc");
    try {
        if (Signatures::readNamed(m_file.package, location, m_file.path) == seal.whole) {
            m_ownFiles.append(m_file.package.find(m_file.path, location));
            return;
        }
    } catch (const Fault &) {
        // As good as another seal.
    }
    m_result.notes.append(Wording::tr("印章文件与所签的印章不同，页面上是所签的印章。"));
}

void ValueCheck::checkMessage(const SignedMessage &message)
{
    readCertificate(message.made);
    // Some writers sign the digest of the description in place of the description itself.
    QVector<QByteArray> contents = digestsOf(m_file.bytes);
    contents.prepend(m_file.bytes);
    const auto isSigned = [&](const QByteArray &content) {
        if (message.content && *message.content != content)
            return false;
        if (message.digest)
            return Crypto::digest(message.digestAlgorithm, content) == message.digest;
        SignedBytes made = message.made;
        made.bytes = content;
        return isRight(made, message.digestAlgorithm);
    };
    if (!isRight(message.made, message.digestAlgorithm) && message.digest)
        m_changed.append(Wording::tr("签名值"));
    else if (std::none_of(contents.cbegin(), contents.cend(), isSigned))
        m_changed.append(m_file.path);
}

void ValueCheck::readCertificate(const SignedBytes &made)
{
    if (made.certificate.isEmpty())
        throw Fault{Wording::tr("签名值中没有证书。")};
    m_result.certificate = Crypto::certificate(made.certificate);
    if (!m_result.certificate)
        throw Fault{Wording::tr("签名值中的证书已损坏。")};
}

bool ValueCheck::isRight(const SignedBytes &made, const QString &digest)
{
    const Crypto::Outcome outcome = Crypto::verify(made, digest);
    if (outcome == Crypto::Outcome::Unknown)
        throw Fault{Wording::tr("未知的签名算法“%1”。").arg(made.algorithm)};
    return outcome == Crypto::Outcome::Right;
}

void ValueCheck::noteTimes(const QDateTime &from, const QDateTime &to, const QString &note)
{
    if (!m_result.time.isValid())
        return;
    if ((from.isValid() && m_result.time < from) || (to.isValid() && m_result.time > to))
        m_result.notes.append(note);
}

} // namespace Ofd
