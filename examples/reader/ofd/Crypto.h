// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Seal.h"

#include <optional>

namespace Ofd {

/** What a certificate says; whether to believe it is not for the reader to tell. */
struct Certificate
{
    QString subject;
    QString issuer;
    QString serial;
    QDateTime validFrom;
    QDateTime validTo;
};

/** The algorithms of signatures, which a reader built without OpenSSL does not have. */
namespace Crypto {

bool isAvailable();

/** The usual name of a digest, which may be given by its object identifier. */
QString nameOfDigest(const QString &algorithm);
/** The names of the key and the digest if the object identifier is known. */
QString nameOfSignature(const QString &algorithm);
/** Nothing for an algorithm that is not known or, as MD5, proves nothing any more. */
std::optional<QByteArray> digest(const QString &algorithm, const QByteArray &bytes);

/** Nothing for bytes that are not a certificate. */
std::optional<Certificate> certificate(const QByteArray &bytes);

enum class Outcome
{
    Right,
    Wrong,
    Unknown ///< The algorithm, or it does not fit to the key.
};

/** @param digest The algorithm of the digest if that of the signature leaves it open. */
Outcome verify(const SignedBytes &made, const QString &digest = QString());

} // namespace Crypto

} // namespace Ofd
