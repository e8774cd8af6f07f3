// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"
#include "tests/ofd/SignedFiles.h"

#include "ofd/SignatureCheck.h"

#include <QTest>

#include <functional>

using namespace SignedFiles;
using PackageMaker::Entries;

using Change = std::function<void(Entries &)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Ofd::SignatureResult::State)

namespace {

constexpr auto valid = Ofd::SignatureResult::Valid;
constexpr auto changed = Ofd::SignatureResult::Changed;
constexpr auto unknown = Ofd::SignatureResult::Unknown;

const Signer &signerOf(const QString &kind)
{
    static const Signer sm2("SM2");
    static const Signer rsa("RSA");
    return kind == "SM2" ? sm2 : rsa;
}

std::shared_ptr<const Ofd::Document> opened(const Entries &entries)
{
    return OfdFiles::read(PackageMaker::archive(entries));
}

/** The only result for a package; an invalid one if there is not exactly one. */
Ofd::SignatureResult resultOf(const Entries &entries)
{
    const auto document = opened(entries);
    const auto results = document ? checkSignatures(*document) : QVector<Ofd::SignatureResult>();
    return results.size() == 1 ? results.first() : Ofd::SignatureResult();
}

/** A document that is signed with the value of that form. */
Entries signedWith(const QString &form, const Signer &signer, const QString &checkMethod)
{
    Entries entries = document(checkMethod);
    const QByteArray description = entries["Signature.xml"];
    if (form.startsWith("message"))
        entries["SignedValue.dat"] = message(signer, description, form.endsWith("attributes"));
    else
        entries["SignedValue.dat"] =
            sealedValue(form.toInt(), signer,
                        seal(form.toInt(), signerOf("SM2"), {signer.certificate}), description);
    return entries;
}

/** Signs again, with a seal for the holders of those certificates. */
Change sealedFor(const QVector<QByteArray> &holders)
{
    return [holders](Entries &entries) {
        const Signer &signer = signerOf("SM2");
        entries["SignedValue.dat"] =
            sealedValue(2020, signer, seal(2020, signer, holders), entries["Signature.xml"]);
    };
}

} // namespace

/** Signatures that the tests make: whether the check tells right ones from all others. */
class TestSignatures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCallRightSignaturesValid_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("checkMethod");
        const char *const rows[][3] = {
            {"SM2", "2014", "SM3"},
            {"SM2", "2020", "1.2.156.10197.1.401"},
            {"RSA", "2014", "SHA1"},
            {"RSA", "2020", "SHA256"},
            {"SM2", "message", "SM3"},
            {"RSA", "message", "sha-256"},
            {"RSA", "message with attributes", "2.16.840.1.101.3.4.2.1"},
        };
        for (const auto &row : rows)
            QTest::addRow("%s, %s, %s", row[0], row[1], row[2]) << row[0] << row[1] << row[2];
    }

    void shouldCallRightSignaturesValid()
    {
        QFETCH(QString, key);
        QFETCH(QString, form);
        QFETCH(QString, checkMethod);
        Entries entries = signedWith(form, signerOf(key), checkMethod);
        const auto result = resultOf(entries);
        QVERIFY2(result.state == valid, qUtf8Printable(result.sentence));
        QCOMPARE(result.seal,
                 form.startsWith("message") ? QString() : QStringLiteral("测试专用章"));
        QCOMPARE(result.protectedFiles.size(), 3);
        QCOMPARE(result.unprotectedFiles, QStringList());
        QVERIFY(result.certificate);
        QCOMPARE(result.certificate->subject, QStringLiteral("CN = 测试单位"));
        QCOMPARE(result.certificate->serial, QStringLiteral("1267"));
        QCOMPARE(result.certificate->validTo.toUTC().date(), QDate(2030, 1, 1));

        entries["Annotations.xml"] = "<Annotations/>";
        const auto withMore = resultOf(entries);
        QCOMPARE(withMore.state, valid);
        QCOMPARE(withMore.unprotectedFiles, QStringList("Annotations.xml"));
        QVERIFY(withMore.sentence != result.sentence);

        entries["Signature.xml"].replace("tests", "other");
        QCOMPARE(resultOf(entries).state, changed);
    }

    void shouldTellWhatIsWrong_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<Ofd::SignatureResult::State>("state");
        QTest::addColumn<QString>("part");
        const auto add = [](const char *name, Ofd::SignatureResult::State state,
                            const QString &part, const Change &change) {
            QTest::newRow(name) << change << state << part;
        };
        add("a changed page", changed, "/Page.xml",
            [](Entries &entries) { entries["Page.xml"] += ' '; });
        add("a changed entry point", changed, "/OFD.xml",
            [](Entries &entries) { entries["OFD.xml"].replace("<DocBody>", "<DocBody ID='2'>"); });
        add("a changed description", changed, "Signature.xml",
            [](Entries &entries) { entries["Signature.xml"] += ' '; });
        add("no value", unknown, "SignedValue.dat",
            [](Entries &entries) { entries.remove("SignedValue.dat"); });
        add("a value without a certificate", unknown, "证书", [](Entries &entries) {
            entries["SignedValue.dat"] = der(0x30, {QByteArray("\2\1\1")});
        });
        add("no description", unknown, "Signature.xml",
            [](Entries &entries) { entries.remove("Signature.xml"); });
        add("an old digest", unknown, "MD5", [](Entries &entries) {
            entries["Signature.xml"].replace("'SM3'", "'1.2.840.113549.2.5'");
        });
        add("an unknown digest", unknown, "1.2.3",
            [](Entries &entries) { entries["Signature.xml"].replace("'SM3'", "'1.2.3'"); });
        add("an unknown algorithm", unknown, "1.2.156.10197.1.601", [](Entries &entries) {
            QByteArray &value = entries["SignedValue.dat"];
            const QByteArray known = QByteArray::fromHex("06082a811ccf55018375");
            value.replace(value.lastIndexOf(known), known.size(),
                          QByteArray::fromHex("06082a811ccf55018459"));
        });
        add("a seal for somebody else", unknown, "印章", sealedFor({"another"}));
        add("a seal for several", valid, "", sealedFor({"another", signerOf("SM2").certificate}));
        add("no protected file", unknown, "受保护", [](Entries &entries) {
            QByteArray &description = entries["Signature.xml"];
            description.replace("Reference ", "Other ").replace("Reference>", "Other>");
        });
    }

    void shouldTellWhatIsWrong()
    {
        QFETCH(Change, change);
        QFETCH(Ofd::SignatureResult::State, state);
        QFETCH(QString, part);
        Entries entries = signedWith("2020", signerOf("SM2"), "SM3");
        change(entries);
        const auto result = resultOf(entries);
        QCOMPARE(result.state, state);
        QVERIFY2(result.sentence.contains(part), qUtf8Printable(result.sentence));
    }

    void shouldCallNoChangedByteOfAValueValid()
    {
        Entries entries = signedWith("2020", signerOf("SM2"), "SM3");
        const QByteArray value = entries["SignedValue.dat"];
        // All of them would take several seconds.
        for (int i = 0; i < value.size(); i += 7) {
            entries["SignedValue.dat"] = value;
            entries["SignedValue.dat"][i] = char(value.at(i) ^ 0x11);
            QVERIFY2(resultOf(entries).state != valid, qPrintable(QString::number(i)));
        }
    }

    void shouldRefuseHostileValues_data()
    {
        QTest::addColumn<QByteArray>("value");
        QByteArray deep;
        for (int depth = 0; depth < 10000; ++depth)
            deep = der(0x30, {deep});
        const QByteArray whole = signedWith("2020", signerOf("SM2"), "SM3")["SignedValue.dat"];
        const QList<std::pair<const char *, QByteArray>> rows{
            {"nothing", ""},
            {"no DER", "<Signature/>"},
            {"4 GB", QByteArray::fromHex("3084ffffffff3003020101")},
            {"a length of nine bytes", QByteArray::fromHex("3089010000000000000000")},
            {"a length that ends early", QByteArray::fromHex("308401")},
            {"no length", QByteArray::fromHex("3080020101020101020101020101")},
            {"a long tag", QByteArray::fromHex("3f8101020101")},
            {"depth", deep},
            {"width", der(0x30, {QByteArray(2 << 20, '\0')})},
            {"too long", der(0x30, {QByteArray(17 << 20, 'A')})},
            {"half", whole.left(700)}};
        for (const auto &[name, value] : rows)
            QTest::newRow(name) << value;
    }

    void shouldRefuseHostileValues()
    {
        QFETCH(QByteArray, value);
        Entries entries = document("SM3");
        entries["SignedValue.dat"] = value;
        const auto document = opened(entries);
        QVERIFY(document);
        QCOMPARE(document->unsupported.all().size(), 1);
        QVERIFY(document->stamps.isEmpty());
        const auto result = resultOf(entries);
        QCOMPARE(result.state, unknown);
        QVERIFY(!result.sentence.isEmpty());
    }

    void shouldOpenADocumentWithADamagedListOfSignatures()
    {
        Entries entries = document("SM3");
        entries["Signatures.xml"] = "<Signatures>";
        const auto document = opened(entries);
        QVERIFY(document && checkSignatures(*document).isEmpty());
        QCOMPARE(document->unsupported.all().size(), 1);
    }

    void shouldNoteTimesOutsideOfValidity()
    {
        const Signer &signer = signerOf("SM2");
        const QByteArray made = seal(2020, signer, {signer.certificate});
        for (const auto &[time, notes] :
             {std::pair{"20240506070809Z", 0}, {"20220101000000Z", 1}, {"20310101000000Z", 2}}) {
            Entries entries = document("SM3");
            entries["SignedValue.dat"] =
                sealedValue(2020, signer, made, entries["Signature.xml"], time);
            const auto result = resultOf(entries);
            QCOMPARE(result.state, valid);
            // The seal file is not there, so nothing differs from it.
            QCOMPARE(result.notes.size(), notes);
        }
    }
};

QTEST_MAIN(TestSignatures)
#include "tst_signatures.moc"
