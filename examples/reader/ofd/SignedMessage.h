// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Seal.h"

#include <optional>

namespace Ofd {

/** A signature without a seal: signed data as in PKCS #7, also with the identifiers for SM2. */
struct SignedMessage
{
    QString digestAlgorithm;
    std::optional<QByteArray> content; ///< Nothing if what is signed lies elsewhere.
    /** The digest of the content among the signed attributes; nothing without attributes. */
    std::optional<QByteArray> digest;
    SignedBytes made; ///< Its bytes are the attributes; without them the content is signed.

    /** Throws a Fault. */
    static SignedMessage read(const Der &value);
};

} // namespace Ofd
