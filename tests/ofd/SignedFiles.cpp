// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/SignedFiles.h"

#include <QBuffer>
#include <QImage>

#include <openssl/cms.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

namespace {

constexpr char usualSigner[] = "1234567812345678";

/** What a function of the kind i2d_... writes. */
template <typename Write>
QByteArray written(Write write)
{
    unsigned char *bytes = nullptr;
    const int size = write(&bytes);
    const QByteArray result(reinterpret_cast<char *>(bytes), size);
    OPENSSL_free(bytes);
    return result;
}

QByteArray identifier(const char *dotted)
{
    const std::shared_ptr<ASN1_OBJECT> object(OBJ_txt2obj(dotted, 1), ASN1_OBJECT_free);
    return written([&](unsigned char **bytes) { return i2d_ASN1_OBJECT(object.get(), bytes); });
}

std::shared_ptr<X509> certificateFor(const SignedFiles::Signer &signer)
{
    std::shared_ptr<X509> certificate(X509_new(), X509_free);
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 4711);
    ASN1_TIME_set_string(X509_getm_notBefore(certificate.get()), "20200101000000Z");
    ASN1_TIME_set_string(X509_getm_notAfter(certificate.get()), "20300101000000Z");
    X509_NAME *name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char *>("测试单位"), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    X509_set_pubkey(certificate.get(), signer.key.get());
    X509_sign(certificate.get(), signer.key.get(), signer.isSm2 ? EVP_sm3() : EVP_sha256());
    return certificate;
}

QByteArray digestOf(const EVP_MD *kind, const QByteArray &bytes)
{
    QByteArray digest(EVP_MD_get_size(kind), '\0');
    EVP_Digest(bytes.constData(), size_t(bytes.size()),
               reinterpret_cast<unsigned char *>(digest.data()), nullptr, kind, nullptr);
    return digest;
}

QByteArray bits(const QByteArray &octets)
{
    return SignedFiles::der(0x03, {QByteArray(1, '\0'), octets});
}

QByteArray pngPicture()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

const QByteArray one = QByteArrayLiteral("\x02\x01\x01");

} // namespace

SignedFiles::Signer::Signer(const QString &kind)
    : isSm2(kind == "SM2")
    , key(isSm2 ? EVP_PKEY_Q_keygen(nullptr, nullptr, "SM2")
                : EVP_PKEY_Q_keygen(nullptr, nullptr, "RSA", size_t(2048)),
          EVP_PKEY_free)
    , algorithm(identifier(isSm2 ? "1.2.156.10197.1.501" : "1.2.840.113549.1.1.11"))
{
    const auto made = certificateFor(*this);
    certificate = written([&](unsigned char **bytes) { return i2d_X509(made.get(), bytes); });
}

QByteArray SignedFiles::Signer::sign(const QByteArray &bytes) const
{
    const std::shared_ptr<EVP_MD_CTX> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    const std::shared_ptr<EVP_PKEY_CTX> keyContext(EVP_PKEY_CTX_new(key.get(), nullptr),
                                                   EVP_PKEY_CTX_free);
    if (isSm2)
        EVP_PKEY_CTX_set1_id(keyContext.get(), usualSigner, int(sizeof usualSigner) - 1);
    EVP_MD_CTX_set_pkey_ctx(context.get(), keyContext.get());
    EVP_DigestSignInit(context.get(), nullptr, isSm2 ? EVP_sm3() : EVP_sha256(), nullptr,
                       key.get());
    QByteArray signature(512, '\0');
    size_t size = size_t(signature.size());
    EVP_DigestSign(context.get(), reinterpret_cast<unsigned char *>(signature.data()), &size,
                   reinterpret_cast<const unsigned char *>(bytes.constData()),
                   size_t(bytes.size()));
    return signature.left(int(size));
}

QByteArray SignedFiles::der(int tag, const QVector<QByteArray> &parts)
{
    QByteArray content;
    for (const QByteArray &part : parts)
        content += part;
    const auto size = quint32(content.size());
    QByteArray head(1, char(tag));
    if (size < 128)
        return head + char(size) + content;
    head += char(0x84);
    for (const int shift : {24, 16, 8, 0})
        head += char(size >> shift);
    return head + content;
}

QByteArray SignedFiles::seal(int form, const Signer &maker, const QVector<QByteArray> &holders)
{
    QVector<QByteArray> list;
    for (const QByteArray &holder : holders)
        list.append(der(0x04, {holder}));
    const QByteArray from = der(0x18, {"20230101000000Z"});
    const QByteArray to = der(0x18, {"20280101000000Z"});
    const QByteArray kind = form == 2020 ? one : QByteArray();
    const QByteArray head = der(0x30, {der(0x16, {"ES"}), one, der(0x16, {"tests"})});
    const QByteArray properties =
        der(0x30, {one, der(0x0C, {"测试专用章"}), kind, der(0x30, list), from, from, to});
    const QByteArray picture = der(0x30, {der(0x16, {"PNG"}), der(0x04, {pngPicture()}), one, one});
    const QByteArray information = der(0x30, {head, der(0x16, {"1"}), properties, picture});
    const QVector<QByteArray> made = {der(0x04, {maker.certificate}), maker.algorithm,
                                      bits(maker.sign(information))};
    if (form == 2020)
        return der(0x30, QVector<QByteArray>{information} + made);
    return der(0x30, {information, der(0x30, made)});
}

QByteArray SignedFiles::sealedValue(int form, const Signer &signer, const QByteArray &seal,
                                    const QByteArray &description, const QByteArray &time)
{
    const QByteArray digest = bits(digestOf(signer.isSm2 ? EVP_sm3() : EVP_sha256(), description));
    const QByteArray holder = der(0x04, {signer.certificate});
    if (form == 2020) {
        const QByteArray signedPart =
            der(0x30, {one, seal, der(0x18, {time}), digest, der(0x16, {"/Signature.xml"})});
        return der(0x30, {signedPart, holder, signer.algorithm, bits(signer.sign(signedPart))});
    }
    const QByteArray signedPart =
        der(0x30, {one, seal, bits(time), digest, der(0x16, {"/Signature.xml"}), holder,
                   signer.algorithm});
    return der(0x30, {signedPart, bits(signer.sign(signedPart))});
}

QByteArray SignedFiles::message(const Signer &signer, const QByteArray &description,
                                bool withAttributes)
{
    auto data = reinterpret_cast<const unsigned char *>(signer.certificate.constData());
    const std::shared_ptr<X509> certificate(d2i_X509(nullptr, &data, signer.certificate.size()),
                                            X509_free);
    if (!signer.isSm2) {
        const std::shared_ptr<BIO> content(
            BIO_new_mem_buf(description.constData(), int(description.size())), BIO_free_all);
        const unsigned flags =
            CMS_DETACHED | CMS_BINARY | (withAttributes ? 0U : unsigned(CMS_NOATTR));
        const std::shared_ptr<CMS_ContentInfo> made(
            CMS_sign(certificate.get(), signer.key.get(), nullptr, content.get(), flags),
            CMS_ContentInfo_free);
        return written(
            [&](unsigned char **bytes) { return i2d_CMS_ContentInfo(made.get(), bytes); });
    }
    const QByteArray issuer = written([&](unsigned char **bytes) {
        return i2d_X509_NAME(X509_get_issuer_name(certificate.get()), bytes);
    });
    const QByteArray serial = written([&](unsigned char **bytes) {
        return i2d_ASN1_INTEGER(X509_get_serialNumber(certificate.get()), bytes);
    });
    const QByteArray sm3 = der(0x30, {identifier("1.2.156.10197.1.401")});
    const QByteArray sm2 = der(0x30, {identifier("1.2.156.10197.1.301.1")});
    const QByteArray who = der(
        0x30, {one, der(0x30, {issuer, serial}), sm3, sm2, der(0x04, {signer.sign(description)})});
    const QByteArray what = der(0x30, {identifier("1.2.156.10197.6.1.4.2.1")});
    const QByteArray data2 =
        der(0x30, {one, der(0x31, {sm3}), what, der(0xA0, {signer.certificate}), der(0x31, {who})});
    return der(0x30, {identifier("1.2.156.10197.6.1.4.2.2"), der(0xA0, {data2})});
}

PackageMaker::Entries SignedFiles::document(const QString &checkMethod)
{
    PackageMaker::Entries entries = {
        {"OFD.xml", "<OFD><DocBody><DocRoot>Document.xml</DocRoot>"
                    "<Signatures>Signatures.xml</Signatures></DocBody></OFD>"},
        {"Document.xml", "<Document><CommonData><PageArea><PhysicalBox>0 0 60 40</PhysicalBox>"
                         "</PageArea></CommonData>"
                         "<Pages><Page ID='1' BaseLoc='Page.xml'/></Pages></Document>"},
        {"Page.xml", "<Page><Content/></Page>"},
    };
    const EVP_MD *kind = EVP_get_digestbyname(qPrintable(checkMethod));
    QByteArray references;
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        const QByteArray digest = digestOf(kind ? kind : EVP_sm3(), entry.value());
        references += "<Reference FileRef='/" + entry.key().toUtf8() + "'><CheckValue>"
                      + digest.toBase64() + "</CheckValue></Reference>";
    }
    entries["Signatures.xml"] =
        "<Signatures><Signature ID='1' Type='Seal' BaseLoc='Signature.xml'/></Signatures>";
    entries["Signature.xml"] =
        "<Signature><SignedInfo><Provider ProviderName='tests'/>"
        "<SignatureDateTime>2024-05-06 07:08:09</SignatureDateTime><References CheckMethod='"
        + checkMethod.toUtf8() + "'>" + references
        + "</References><StampAnnot ID='1' PageRef='1' Boundary='5 5 20 20'/></SignedInfo>"
          "<SignedValue>SignedValue.dat</SignedValue></Signature>";
    return entries;
}
