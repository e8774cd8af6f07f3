// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/ofd/PackageMaker.h"

#include <QVector>

#include <openssl/types.h>

#include <memory>

/** Makes signed OFD files with fresh keys. */
namespace SignedFiles {

/** A key with the certificate for it, which is valid from 2020 to 2030. */
struct Signer
{
    explicit Signer(const QString &kind); ///< "SM2" or "RSA".

    QByteArray sign(const QByteArray &bytes) const;

    bool isSm2;
    std::shared_ptr<EVP_PKEY> key;
    QByteArray certificate;
    QByteArray algorithm; ///< An object identifier, encoded.
};

/** A value in DER. */
QByteArray der(int tag, const QVector<QByteArray> &parts);

/** A seal for the holders of the certificates, made by the signer. */
QByteArray seal(int form, const Signer &maker, const QVector<QByteArray> &holders);

/** The value of a signature with a seal on the description of the signature. */
QByteArray sealedValue(int form, const Signer &signer, const QByteArray &seal,
                       const QByteArray &description, const QByteArray &time = "20240506070809Z");

/** The value without a seal, as PKCS #7 has it; for RSA with or without signed attributes. */
QByteArray message(const Signer &signer, const QByteArray &description, bool withAttributes);

/** A document with the list of its signatures and a description that protects all the rest. */
PackageMaker::Entries document(const QString &checkMethod);

} // namespace SignedFiles
