// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/MarkedLanguage.h"
#include "tests/support/TestHost.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

using namespace Describe;

/** What a change of the language leaves as it is. */
class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepWhatIsTyped()
    {
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE));
        host->showEnabled();
        host->click("tb_fields");
        auto *box = host->find<QComboBox>("v_zoom");
        auto *search = host->find<QLineEdit>("st_input");
        box->lineEdit()->setText("250");
        box->lineEdit()->setSelection(1, 1);
        QTest::mouseClick(search, Qt::LeftButton);
        QTest::keyClicks(search, "word");
        const int widened = search->width();
        const int length = int(search->placeholderText().size());
        const int index = box->currentIndex();
        const QSignalSpy zooms(&host->facade(), &MRToolBar::DoSetZoomMode);
        const QSignalSpy commands(&host->facade(), &MRToolBar::DoActive);
        const QSignalSpy entries(box, &QComboBox::currentTextChanged);

        MarkedLanguage marked;
        marked.install();
        QCOMPARE(box->currentText(), QString("250"));
        QCOMPARE(box->lineEdit()->selectedText(), QString("5"));
        QCOMPARE(box->currentIndex(), index);
        QCOMPARE(search->text(), QString("word"));
        QCOMPARE(search->width(), widened / length * (length + 3));
        QCOMPARE(zooms.size() + commands.size() + entries.size(), 0);
    }

    void shouldKeepTheRulesOfTheZoomBox()
    {
        MarkedLanguage marked;
        marked.install();
        TestHost host(
            row(comboBox("v_zoom", choice("vzmode_100p", "100%") + choice("vzmode_fit", "fit"),
                         "index='2' editable='true'")));
        host.showEnabled();
        auto *box = host.find<QComboBox>("v_zoom");
        const QSignalSpy zooms(&host.facade(), &MRToolBar::DoSetZoomMode);
        QVERIFY(!box->isEditable());
        box->setCurrentIndex(0);
        QVERIFY(box->isEditable());
        QCOMPARE(box->currentText(), QString("<100% >"));
        for (const QString number : {"100", "42"}) {
            box->setEditText(number);
            QTest::keyClick(box->lineEdit(), Qt::Key_Return);
        }
        QCOMPARE(TestHost::texts(zooms), QStringList({"vzmode_100p", "vzmode_42p"}));
        marked.remove();
        QCOMPARE(box->currentText(), QString("42%"));
        QCOMPARE(box->itemText(0), QString("100%"));
    }

    void shouldPutTheTotalIntoTheText()
    {
        TestHost host(row(label("d_totalpagelabel", "a b c")));
        const auto *total = host.find<QLabel>("d_totalpagelabel");
        host.facade().DoSetPageInfoSlot(1, 12);
        host.facade().DoSetPageInfoSlot(1, 34);
        const QString shown = total->text();
        QTranslator other; // Knows nothing of descriptions.
        QCoreApplication::installTranslator(&other);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&host.window(), &change);
        QCOMPARE(total->text(), shown);
        MarkedLanguage marked;
        marked.install();
        QCOMPARE(total->text(), QString("<a34b c >"));
    }

    void shouldKeepAMenuOpen()
    {
        TestHost host(row(menu("m", item("one") + item("another"))));
        host.showEnabled();
        auto *opened = host.find<QMenu>("m");
        opened->popup(host.window().pos());
        QVERIFY(QTest::qWaitForWindowExposed(opened));
        const int width = opened->width();
        MarkedLanguage marked;
        marked.install();
        QVERIFY(opened->isVisible());
        QCOMPARE(opened->title(), QString("<m >"));
        // The window system may still tell of the size before.
        QTRY_VERIFY(opened->width() > width);
        QTRY_COMPARE(opened->size(), opened->sizeHint());
    }
};

QTEST_MAIN(TranslationTest)
#include "tst_translation.moc"
