// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/SignatureCheck.h"
#include "ofd/SignedMessage.h"
#include "ofd/XmlElement.h"

namespace Ofd {

/** The description of a signature; the constructor throws a Fault for a damaged one. */
struct SignatureFile
{
    SignatureFile(const Package &package, const QString &path);

    const XmlElement &information() const { return *root.child("SignedInfo"); }

    const Package &package;
    QString path;
    QByteArray bytes;
    XmlElement root;
};

/** Checks the value of a signature, which is about the bytes of its description. */
class ValueCheck
{
public:
    ValueCheck(const SignatureFile &file, SignatureResult &result);

    /** Names what was changed; throws a Fault if that cannot be told. */
    QStringList run();

    /** The entries that a right value proves to belong to the signature. */
    const QStringList &ownFiles() const { return m_ownFiles; }

private:
    void checkSealed(const SealedValue &sealed);
    void checkSeal(const Seal &seal, const QByteArray &holder);
    void compareWithFile(const Seal &seal);
    void checkMessage(const SignedMessage &message);
    void readCertificate(const SignedBytes &made);
    bool isRight(const SignedBytes &made, const QString &digest);
    void noteTimes(const QDateTime &from, const QDateTime &to, const QString &note);

    const SignatureFile &m_file;
    SignatureResult &m_result;
    QStringList m_changed;
    QStringList m_ownFiles;
};

} // namespace Ofd
