// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Crypto.h"

#ifdef READER_HAS_OPENSSL
#include <openssl/evp.h>
#include <openssl/x509.h>
#endif

#include <memory>

namespace Ofd {

namespace {

struct Digest
{
    const char *identifier;
    const char *name;
};

constexpr Digest digests[] = {
    {"1.2.156.10197.1.401", "SM3"},       {"1.3.14.3.2.26", "SHA1"},
    {"2.16.840.1.101.3.4.2.1", "SHA256"}, {"2.16.840.1.101.3.4.2.2", "SHA384"},
    {"2.16.840.1.101.3.4.2.3", "SHA512"}, {"1.2.840.113549.2.5", "MD5"},
};

struct Algorithm
{
    const char *identifier;
    const char *key;
    const char *digest; ///< Null if the signature names it apart.
};

constexpr Algorithm algorithms[] = {
    {"1.2.156.10197.1.501", "SM2", "SM3"},      {"1.2.156.10197.1.301", "SM2", "SM3"},
    {"1.2.156.10197.1.301.1", "SM2", "SM3"},    {"1.2.840.113549.1.1.5", "RSA", "SHA1"},
    {"1.2.840.113549.1.1.11", "RSA", "SHA256"}, {"1.2.840.113549.1.1.12", "RSA", "SHA384"},
    {"1.2.840.113549.1.1.13", "RSA", "SHA512"}, {"1.2.840.113549.1.1.1", "RSA", nullptr},
    {"1.2.156.10197.1.504", "RSA", "SM3"},
};

} // namespace

QString Crypto::nameOfDigest(const QString &algorithm)
{
    QString name = algorithm.trimmed().toUpper().remove(QChar(u'-'));
    for (const Digest &digest : digests) {
        if (name == QLatin1String(digest.identifier))
            name = QLatin1String(digest.name);
    }
    return name;
}

QString Crypto::nameOfSignature(const QString &algorithm)
{
    for (const Algorithm &known : algorithms) {
        if (algorithm == QLatin1String(known.identifier) && known.digest)
            return QStringLiteral("%1 + %2").arg(QLatin1String(known.key),
                                                 QLatin1String(known.digest));
    }
    return algorithm;
}

#ifndef READER_HAS_OPENSSL

bool Crypto::isAvailable()
{
    return false;
}

std::optional<QByteArray> Crypto::digest(const QString &, const QByteArray &)
{
    return std::nullopt;
}

std::optional<Certificate> Crypto::certificate(const QByteArray &)
{
    return std::nullopt;
}

Crypto::Outcome Crypto::verify(const SignedBytes &, const QString &)
{
    return Outcome::Unknown;
}

#else

namespace {

template <auto free>
struct Free
{
    template <typename T>
    void operator()(T *object) const
    {
        free(object);
    }
};
template <typename T, auto free>
using Owned = std::unique_ptr<T, Free<free>>;

using X509Pointer = Owned<X509, X509_free>;
using BioPointer = Owned<BIO, BIO_free_all>;

/** The name of a signer who is not named otherwise, which is part of what SM2 signs. */
constexpr char usualSigner[] = "1234567812345678";
constexpr int sideOfPoint = 32;

const EVP_MD *kindOf(const QString &algorithm)
{
    const QString name = Crypto::nameOfDigest(algorithm);
    if (name == QLatin1String("MD5"))
        return nullptr;
    for (const Digest &digest : digests) {
        if (name == QLatin1String(digest.name))
            return EVP_get_digestbyname(digest.name);
    }
    return nullptr;
}

X509Pointer parse(const QByteArray &bytes)
{
    auto data = reinterpret_cast<const unsigned char *>(bytes.constData());
    return X509Pointer(d2i_X509(nullptr, &data, long(bytes.size())));
}

/** What a function of the library prints. */
template <typename Print>
QString printed(Print print)
{
    const BioPointer output(BIO_new(BIO_s_mem()));
    print(output.get());
    char *data = nullptr;
    const long size = BIO_get_mem_data(output.get(), &data);
    return QString::fromUtf8(data, int(size));
}

QString nameOf(const X509_NAME *name)
{
    constexpr unsigned long flags =
        (XN_FLAG_ONELINE | ASN1_STRFLGS_UTF8_CONVERT) & ~ulong(ASN1_STRFLGS_ESC_MSB);
    return printed([name](BIO *output) { X509_NAME_print_ex(output, name, 0, flags); });
}

QDateTime timeOf(const ASN1_TIME *time)
{
    tm parts = {};
    if (ASN1_TIME_to_tm(time, &parts) != 1)
        return QDateTime();
    return QDateTime(QDate(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday),
                     QTime(parts.tm_hour, parts.tm_min, parts.tm_sec), Qt::UTC);
}

/** One of the two numbers of an SM2 signature. */
QByteArray encodedNumber(QByteArray digits)
{
    while (digits.size() > 1 && digits.startsWith('\0'))
        digits.remove(0, 1);
    if (quint8(digits.at(0)) & 0x80)
        digits.prepend('\0');
    return QByteArray("\x02") + char(digits.size()) + digits;
}

/** Some writers store both numbers of an SM2 signature without the encoding around them. */
QByteArray encodedSignature(const QByteArray &signature)
{
    if (signature.size() != 2 * sideOfPoint)
        return signature;
    const QByteArray numbers =
        encodedNumber(signature.left(sideOfPoint)) + encodedNumber(signature.mid(sideOfPoint));
    return QByteArray("\x30") + char(numbers.size()) + numbers;
}

const unsigned char *start(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

Crypto::Outcome verifyWith(EVP_PKEY *key, const EVP_MD *digest, const QByteArray &bytes,
                           const QByteArray &signature)
{
    const Owned<EVP_PKEY_CTX, EVP_PKEY_CTX_free> keyContext(EVP_PKEY_CTX_new(key, nullptr));
    const Owned<EVP_MD_CTX, EVP_MD_CTX_free> context(EVP_MD_CTX_new());
    if (!keyContext || !context)
        return Crypto::Outcome::Unknown;
    if (EVP_PKEY_is_a(key, "SM2") == 1)
        EVP_PKEY_CTX_set1_id(keyContext.get(), usualSigner, int(sizeof usualSigner) - 1);
    EVP_MD_CTX_set_pkey_ctx(context.get(), keyContext.get());
    if (EVP_DigestVerifyInit(context.get(), nullptr, digest, nullptr, key) != 1)
        return Crypto::Outcome::Unknown;
    const int result = EVP_DigestVerify(context.get(), start(signature), size_t(signature.size()),
                                        start(bytes), size_t(bytes.size()));
    return result == 1 ? Crypto::Outcome::Right : Crypto::Outcome::Wrong;
}

} // namespace

bool Crypto::isAvailable()
{
    return true;
}

std::optional<QByteArray> Crypto::digest(const QString &algorithm, const QByteArray &bytes)
{
    const EVP_MD *kind = kindOf(algorithm);
    unsigned char value[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (!kind
        || EVP_Digest(bytes.constData(), size_t(bytes.size()), value, &size, kind, nullptr) != 1)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char *>(value), int(size));
}

std::optional<Certificate> Crypto::certificate(const QByteArray &bytes)
{
    const X509Pointer parsed = parse(bytes);
    if (!parsed)
        return std::nullopt;
    const ASN1_INTEGER *serial = X509_get0_serialNumber(parsed.get());
    return Certificate{
        nameOf(X509_get_subject_name(parsed.get())), nameOf(X509_get_issuer_name(parsed.get())),
        printed([serial](BIO *output) { i2a_ASN1_INTEGER(output, serial); }),
        timeOf(X509_get0_notBefore(parsed.get())), timeOf(X509_get0_notAfter(parsed.get()))};
}

Crypto::Outcome Crypto::verify(const SignedBytes &made, const QString &digest)
{
    const X509Pointer certificate = parse(made.certificate);
    EVP_PKEY *key = certificate ? X509_get0_pubkey(certificate.get()) : nullptr;
    if (!key)
        return Outcome::Unknown;
    for (const Algorithm &algorithm : algorithms) {
        if (made.algorithm != QLatin1String(algorithm.identifier))
            continue;
        const EVP_MD *kind =
            kindOf(algorithm.digest ? QString::fromLatin1(algorithm.digest) : digest);
        if (!kind || EVP_PKEY_is_a(key, algorithm.key) != 1)
            return Outcome::Unknown;
        const bool isPair = EVP_PKEY_is_a(key, "SM2") == 1;
        return verifyWith(key, kind, made.bytes,
                          isPair ? encodedSignature(made.signature) : made.signature);
    }
    return Outcome::Unknown;
}

#endif

} // namespace Ofd
