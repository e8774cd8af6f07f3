// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Fault.h"
#include "ofd/Package.h"

#include <QTemporaryDir>
#include <QTest>

#include <quazip/quazipfile.h>
#include <quazip/quazipnewinfo.h>

#include <array>

namespace {

/** The two versions of Qt name their checks for exceptions differently. */
bool isRefused(const Ofd::Package &package, const QString &location)
{
    try {
        package.find("Doc_0/Document.xml", location);
        return false;
    } catch (const Ofd::Fault &) {
        return true;
    }
}

} // namespace

/** How locations in a document lead to entries of its archive. */
class TestOfdPackage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QuaZip zip(m_folder.filePath("a.ofd"));
        zip.setFileNameCodec("GB18030");
        QVERIFY(zip.open(QuaZip::mdCreate));
        // Each entry contains its name, so that the wrong one is noticed.
        for (const QString name :
             {"Doc_0\\Pages\\a.xml", "Doc_0/Res/Image.PNG", "Doc_0/Res/image.png",
              "Doc_0/Res/图像 1.png", "Doc_0/Res/100%.png", "Root.xml"}) {
            QuaZipFile entry(&zip);
            QVERIFY(entry.open(QIODevice::WriteOnly, QuaZipNewInfo(name)));
            entry.write(name.toUtf8());
        }
    }

    void shouldFindTheEntry_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<QString>("entry");
        const QList<std::array<const char *, 3>> rows{
            {"exact", "Res/image.png", "Doc_0/Res/image.png"},
            {"exact before other cases", "Res/Image.PNG", "Doc_0/Res/Image.PNG"},
            {"other case", "RES/100%.PNG", "Doc_0/Res/100%.png"},
            {"stored with backslashes", "Pages/a.xml", "Doc_0\\Pages\\a.xml"},
            {"named with backslashes", "Pages\\..\\Res\\image.png", "Doc_0/Res/image.png"},
            {"absolute with a backslash", "\\Doc_0\\pages\\A.xml", "Doc_0\\Pages\\a.xml"},
            {"Chinese in another encoding", "Res/图像 1.png", "Doc_0/Res/图像 1.png"},
            {"percent encoding", "Res/%E5%9B%BE%E5%83%8F%201.png", "Doc_0/Res/图像 1.png"},
            {"a plain percent sign", "Res/100%.png", "Doc_0/Res/100%.png"},
            {"relative to the root", "Root.xml", "Root.xml"},
            {"missing", "Res/other.png", ""},
            {"missing one level up", "../other.png", ""}};
        for (const auto &row : rows)
            QTest::newRow(row[0]) << QString::fromUtf8(row[1]) << QString::fromUtf8(row[2]);
    }

    void shouldFindTheEntry()
    {
        QFETCH(QString, location);
        QFETCH(QString, entry);
        const Ofd::Package package(m_folder.filePath("a.ofd"));
        const QString path = package.find("Doc_0/Document.xml", location);
        QCOMPARE(path.isEmpty(), entry.isEmpty());
        if (path.isEmpty())
            return;
        QCOMPARE(QString::fromUtf8(package.read(path)), entry);
        QCOMPARE(QString::fromUtf8(package.readStart(path, 4)), entry.left(4));
    }

    void shouldRefuseALocationOutside()
    {
        const Ofd::Package package(m_folder.filePath("a.ofd"));
        for (const char *location :
             {"../../a", "..\\..\\a", "/../a", "C:\\a", "c:/a", "%2E%2e/../a"})
            QVERIFY2(isRefused(package, location), location);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestOfdPackage)
#include "tst_ofdpackage.moc"
