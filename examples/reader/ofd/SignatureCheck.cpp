// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/SignatureCheck.h"

#include "ofd/Fault.h"
#include "ofd/ValueCheck.h"
#include "ofd/Wording.h"

#include <QSet>

namespace Ofd {

namespace {

constexpr int mostNamedFiles = 3;

/** The digests of the entries of a package, each made once. */
class FileDigests
{
public:
    explicit FileDigests(const Package &package)
        : m_package(package)
    {
    }

    /** Nothing for an entry that is missing. */
    std::optional<QByteArray> of(const QString &path, const QString &algorithm)
    {
        const QString key = algorithm + QChar(u' ') + path;
        const auto known = m_known.constFind(key);
        if (known != m_known.constEnd())
            return *known;
        std::optional<QByteArray> digest;
        try {
            digest = Crypto::digest(algorithm, m_package.read(path));
        } catch (const Fault &) {
            // A missing entry has no digest.
        }
        m_known.insert(key, digest);
        return digest;
    }

private:
    const Package &m_package;
    QHash<QString, std::optional<QByteArray>> m_known;
};

void describe(const XmlElement &information, SignatureResult &result)
{
    if (const XmlElement *provider = information.child("Provider")) {
        const QStringList parts{provider->attribute("ProviderName"), provider->attribute("Version"),
                                provider->attribute("Company")};
        result.provider = parts.join(QChar(u' ')).simplified();
    }
    result.method = information.childText("SignatureMethod");
    result.statedTime = information.childText("SignatureDateTime");
}

/** The name of a digest that proves something; throws a Fault for another one. */
QString usableDigest(const XmlElement &references, SignatureResult &result)
{
    const QString stated = references.attribute("CheckMethod");
    // The standard's default.
    const QString name = stated.isEmpty() ? QStringLiteral("MD5") : Crypto::nameOfDigest(stated);
    if (name == QLatin1String("MD5"))
        throw Fault{Wording::tr("摘要算法 MD5 已不安全。")};
    if (!Crypto::digest(name, QByteArray()))
        throw Fault{Wording::tr("未知的摘要算法“%1”。").arg(name)};
    if (name == QLatin1String("SHA1"))
        result.notes.append(Wording::tr("摘要算法 SHA-1 已较弱。"));
    return name;
}

QStringList changedFiles(const SignatureFile &file, const XmlElement &references,
                         FileDigests &digests, SignatureResult &result)
{
    const QString method = usableDigest(references, result);
    QStringList changed;
    for (const XmlElement &reference : references.children) {
        if (!reference.is("Reference"))
            continue;
        const QString location = reference.attribute("FileRef");
        const QString path = file.package.find(file.path, location);
        const auto digest = digests.of(path, method);
        const QByteArray value =
            QByteArray::fromBase64(reference.childText("CheckValue").toLatin1());
        if (!digest || *digest != value)
            changed.append(location);
        else
            result.protectedFiles.append(path);
    }
    return changed;
}

void setChanged(const QStringList &changed, SignatureResult &result)
{
    QString names = QStringList(changed.mid(0, mostNamedFiles)).join(Wording::tr("、"));
    if (changed.size() > mostNamedFiles)
        names = Wording::tr("%1 等 %2 处").arg(names).arg(changed.size());
    result.state = SignatureResult::Changed;
    result.sentence = Wording::tr("签名后被修改：%1").arg(names);
}

/** Sets the result and returns the entries that belong to the signature itself. */
QStringList check(const SignatureFile &file, FileDigests &digests, SignatureResult &result)
{
    describe(file.information(), result);
    if (!Crypto::isAvailable())
        throw Fault{Wording::tr("本阅读器编译时未包含签名算法。")};
    const XmlElement *references = file.information().child("References");
    if (!references || !references->child("Reference"))
        throw Fault{Wording::tr("签名没有指明受保护的文件。")};
    // A changed file is certain even if the value of the signature cannot be verified.
    QStringList changed = changedFiles(file, *references, digests, result);
    ValueCheck value(file, result);
    try {
        changed += value.run();
    } catch (const Fault &) {
        if (changed.isEmpty())
            throw;
    }
    if (!changed.isEmpty()) {
        setChanged(changed, result);
        return {};
    }
    result.state = SignatureResult::Valid;
    return value.ownFiles();
}

/** A valid signature tells nothing about files that it does not protect. */
void setValid(const QStringList &entries, const QSet<QString> &ownFiles, SignatureResult &result)
{
    const QSet<QString> known(result.protectedFiles.cbegin(), result.protectedFiles.cend());
    for (const QString &entry : entries) {
        if (!known.contains(entry) && !ownFiles.contains(entry))
            result.unprotectedFiles.append(entry);
    }
    const auto count = result.unprotectedFiles.size();
    result.sentence = count == 0 ? Wording::tr("签名有效")
                                 : Wording::tr("签名有效，但包内有 %1 个文件不受保护").arg(count);
}

} // namespace

QVector<SignatureResult> checkSignatures(const Document &document)
{
    const Package &package = *document.package;
    FileDigests digests(package);
    QVector<SignatureResult> results;
    QSet<QString> ownFiles{document.signatures.file};
    for (const QString &path : document.signatures.entries) {
        SignatureResult result;
        try {
            const QStringList own = check(SignatureFile(package, path), digests, result);
            ownFiles += QSet<QString>(own.cbegin(), own.cend());
        } catch (const Fault &fault) {
            result.state = SignatureResult::Unknown;
            result.sentence = Wording::tr("无法验证：%1").arg(fault.message);
        }
        results.append(result);
    }
    QStringList entries = package.entries();
    entries.sort();
    for (SignatureResult &result : results) {
        if (result.state == SignatureResult::Valid)
            setValid(entries, ownFiles, result);
    }
    return results;
}

} // namespace Ofd
