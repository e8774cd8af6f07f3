// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Der.h"

namespace Ofd {

/** Bytes with a signature on them. */
struct SignedBytes
{
    QByteArray bytes;
    QByteArray certificate; ///< Of who signed them.
    QString algorithm;      ///< An object identifier.
    QByteArray signature;
};

/** An electronic seal in the form of 2014 or of 2020. All functions throw a Fault. */
struct Seal
{
    QByteArray whole;
    QString name;
    QDateTime validFrom;
    QDateTime validTo;
    /** The certificates that may seal with it, or objects with their digests. */
    QVector<Der> holders;
    QByteArray picture; ///< A picture file or an OFD file.
    SignedBytes made;   ///< By its maker.

    static Seal read(const Der &seal);
};

/** What a seal's holder signed: the seal and the digest of the description of the signature. */
struct SealedValue
{
    Seal seal;
    QByteArray digest;
    QDateTime time; ///< Invalid in the form of 2014, where an authority may state it.
    SignedBytes made;

    static SealedValue read(const Der &value);
};

} // namespace Ofd
