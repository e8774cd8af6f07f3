// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/NavigationPanel.h"
#include "panels/SignatureDialog.h"
#include "tests/ofd/SignedFiles.h"
#include "tests/reader/DialogUser.h"
#include "tests/reader/ReaderHost.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>

#include <functional>

using namespace SignedFiles;

namespace {

/** What is painted in the colour of the test's seals. */
QRect redOf(const QImage &image)
{
    QRect red;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == Qt::red)
                red |= QRect(x, y, 1, 1);
        }
    }
    return red;
}

/** Runs something that opens the list; returns the texts of the list and of the details. */
QStringList textsAfter(const std::function<void()> &open)
{
    QStringList texts;
    // The dialog has an event loop of its own.
    QTimer::singleShot(0, [&texts] {
        auto *dialog = qobject_cast<SignatureDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        const auto *list = dialog->findChild<QListWidget *>();
        for (int i = 0; i < list->count(); ++i)
            texts.append(list->item(i)->text());
        texts.append(dialog->findChild<QTextBrowser *>()->toPlainText());
        dialog->reject();
    });
    open();
    return texts;
}

/** The reader with the list of signatures on show in the toolbar. */
struct Reader : ReaderHost
{
    Reader()
        : ReaderHost("reader")
    {
        window.resize(1000, 700);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // The row of a tab is made when it is shown.
        window.findChild<QAbstractButton *>("tb_view")->click();
        QTRY_VERIFY((command = window.findChild<QAction *>("t_sealverify")));
    }

    QAction *command = nullptr;
};

} // namespace

/** The list of signatures in the reader. */
class ReaderSignaturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        keepUsersSettings();
        const Signer signer("SM2");
        PackageMaker::Entries entries = document("SM3");
        entries["SignedValue.dat"] = sealedValue(
            2020, signer, seal(2020, signer, {signer.certificate}), entries["Signature.xml"]);
        // The second one has the value of the first one.
        entries["Signatures.xml"].replace("</Signatures>",
                                          "<Signature ID='2' BaseLoc='Other.xml'/></Signatures>");
        entries["Other.xml"] = entries["Signature.xml"];
        entries["Other.xml"].replace("Boundary='5 5 20 20'", "Boundary='5 5 50 30'");
        QVERIFY(PackageMaker::write(m_signed, PackageMaker::archive(entries)));
    }

    void shouldShowWhatTheCheckTellsOfSignedDocumentsOnly()
    {
        Reader reader;
        QVERIFY(reader.command && !reader.command->isEnabled());
        reader.window.openSample();
        QVERIFY(!reader.command->isEnabled());
        reader.window.open(m_signed);
        QTRY_VERIFY(reader.command->isEnabled());
        const QStringList texts = textsAfter([&] { reader.command->trigger(); });
        QCOMPARE(texts.size(), 3);
        QVERIFY2(texts.at(0).contains("测试专用章"), qUtf8Printable(texts.at(0)));
        QVERIFY(texts.at(0) != texts.at(1));
        for (const char *part : {"测试专用章", "Other.xml", "CN = 测试单位"})
            QVERIFY2(texts.at(2).contains(part), qUtf8Printable(texts.at(2)));
    }

    void shouldShowTheSignatureOfASealThatIsClickedTwice()
    {
        Reader reader;
        reader.window.open(m_signed);
        QRect red;
        QTRY_VERIFY((red = redOf(reader.sheet()->grab().toImage())).isValid());
        const auto click = [&](QPoint place) {
            return textsAfter(
                [&] { QTest::mouseDClick(reader.sheet(), Qt::LeftButton, Qt::NoModifier, place); });
        };
        // The second seal is wider than the first one and above it.
        const QStringList texts = click(red.center());
        QCOMPARE(texts.size(), 3);
        const QString result = texts.at(2).trimmed().section('\n', 0, 0);
        QVERIFY2(texts.at(1).endsWith(result), qUtf8Printable(result));
        QVERIFY2(!texts.at(0).endsWith(result), qUtf8Printable(result));
        QVERIFY(click(red.topLeft() - QPoint(3, 3)).isEmpty());
    }

    void shouldAskBeforeItBreaksASignature()
    {
        const QString name = m_folder.filePath("changed.ofd");
        QVERIFY(QFile::copy(m_signed, name));
        Reader reader;
        reader.window.open(name);
        QTRY_VERIFY(reader.command->isEnabled());
        const auto result = [&] { return textsAfter([&] { reader.command->trigger(); }).value(0); };
        const QString before = result();
        Q_EMIT reader.window.findChild<NavigationPanel *>()->bookmarkAsked(0);
        for (const DialogUser::Answer answer : {DialogUser::Escape, DialogUser::Accept}) {
            QVERIFY(activate(reader.window) && reader.window.isWindowModified());
            const DialogUser user(answer);
            QTest::keyClick(&reader.window, Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(user.questions.size(), 1);
        }
        QVERIFY(!reader.window.isWindowModified());
        reader.window.open(name);
        const QString after = result();
        QVERIFY2(after != before && after.contains("签名后被修改"), qUtf8Printable(before + after));
    }

private:
    const QTemporaryDir m_folder;
    const QString m_signed = m_folder.filePath("signed.ofd");
};

QTEST_MAIN(ReaderSignaturesTest)
#include "tst_readersignatures.moc"
