// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Crypto.h"
#include "ofd/Document.h"

namespace Ofd {

/** What the check of one signature has shown. */
struct SignatureResult
{
    enum State
    {
        Valid,   ///< Nothing that it protects has changed.
        Changed, ///< Something was changed after signing.
        Unknown  ///< It cannot be verified.
    };

    State state = Unknown;
    QString sentence;  ///< The result, with the reason or what has changed.
    QStringList notes; ///< What else the user should know.
    QString provider;
    QString method;     ///< An object identifier, usually.
    QString statedTime; ///< As the description has it.
    QDateTime time;     ///< As the signer states it; invalid if it cannot be read.
    QString seal;       ///< Its name; empty for a signature without one.
    QStringList protectedFiles;
    QStringList unprotectedFiles;
    std::optional<Certificate> certificate;
};

/** Checks the signatures of a document in their order, which reads all protected files. */
QVector<SignatureResult> checkSignatures(const Document &document);

} // namespace Ofd
