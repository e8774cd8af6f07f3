// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Seal.h"

#include "ofd/Fault.h"
#include "ofd/Wording.h"

namespace Ofd {

namespace {

/** The values inside; throws a Fault for fewer than are needed. */
QVector<Der> partsOf(const Der &value, int least)
{
    const QVector<Der> parts = value.children();
    if (value.tag() != Der::Sequence || parts.size() < least)
        throw Fault{Wording::tr("签章数据的结构不符合标准。")};
    return parts;
}

SignedBytes signedBytes(const Der &bytes, const Der &certificate, const Der &algorithm,
                        const Der &signature)
{
    return {bytes.whole(), certificate.octets(), algorithm.identifier(), signature.bits()};
}

void readProperties(const Der &properties, Seal &seal)
{
    QVector<Der> parts = partsOf(properties, 6);
    // The form of 2020 says before the list of holders what its entries are.
    if (parts.at(2).tag() == Der::Integer)
        parts.remove(2);
    if (parts.size() < 6)
        throw Fault{Wording::tr("签章数据的结构不符合标准。")};
    seal.name = parts.at(1).text();
    seal.holders = parts.at(2).children();
    seal.validFrom = parts.at(4).time();
    seal.validTo = parts.at(5).time();
}

} // namespace

Seal Seal::read(const Der &value)
{
    const QVector<Der> parts = partsOf(value, 2);
    const QVector<Der> information = partsOf(parts.first(), 4);
    Seal seal;
    seal.whole = value.whole();
    readProperties(information.at(2), seal);
    seal.picture = partsOf(information.at(3), 2).at(1).content();
    if (parts.at(1).tag() == Der::Sequence) {
        const QVector<Der> maker = partsOf(parts.at(1), 3);
        seal.made = signedBytes(parts.first(), maker.at(0), maker.at(1), maker.at(2));
    } else {
        partsOf(value, 4);
        seal.made = signedBytes(parts.first(), parts.at(1), parts.at(2), parts.at(3));
    }
    return seal;
}

SealedValue SealedValue::read(const Der &value)
{
    const QVector<Der> parts = partsOf(value, 2);
    const QVector<Der> what = partsOf(parts.first(), 4);
    SealedValue sealed;
    sealed.seal = Seal::read(what.at(1));
    sealed.time = what.at(2).time();
    sealed.digest = what.at(3).bits();
    if (parts.at(1).tag() == Der::BitString) {
        // The form of 2014 has the certificate inside of what is signed.
        partsOf(parts.first(), 7);
        sealed.made = signedBytes(parts.first(), what.at(5), what.at(6), parts.at(1));
    } else {
        partsOf(value, 4);
        sealed.made = signedBytes(parts.first(), parts.at(1), parts.at(2), parts.at(3));
    }
    return sealed;
}

} // namespace Ofd
