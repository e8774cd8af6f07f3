// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "shell/Language.h"
#include "tests/reader/ReaderHost.h"
#include "tests/support/ChineseTexts.h"

#include <toolbar/NewToolBar.h>
#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QDomDocument>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

/** The language of the reader, the library and the dialogs of Qt. */
class ReaderLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        keepUsersSettings();
        Language::install("en");
    }

    void shouldShowEnglishTextsOnly()
    {
        ReaderHost reader;
        ReaderWindow &window = reader.window;
        window.addHostPanel();
        QCOMPARE(window.windowTitle(), QString("OFD Reader"));
        QVERIFY(window.findChildren<QDockWidget *>().size() >= 3);
        QCOMPARE(chineseTexts(window, window.findChild<QToolBar *>("mrtoolbar")), QStringList());
        window.openSample();
        QTRY_VERIFY2(window.windowTitle().endsWith(" (generated pages) - OFD Reader"),
                     qPrintable(window.windowTitle()));
        const QList<QLabel *> labels = window.statusBar()->findChildren<QLabel *>();
        const auto isPage = [](const QLabel *label) {
            return label->text().startsWith("Page 1 / ");
        };
        QVERIFY(std::any_of(labels.begin(), labels.end(), isPage));
    }

    void shouldLookAsAtTheStartAfterAnotherScaleAndLanguage_data()
    {
        QTest::addColumn<int>("style");
        QTest::newRow("marodi") << 0;
        QTest::newRow("lum") << 1;
    }

    void shouldLookAsAtTheStartAfterAnotherScaleAndLanguage()
    {
        QFETCH(int, style);
        NewToolBar::uiStyle = style;
        Language::install("zh_CN");
        QString error;
        QDomDocument description =
            Description::read(OFD_SAMPLES "/../showcase.xml", QTest::currentDataTag(), &error);
        Language::addTo(description);
        ReaderWindow window(description, QString());
        window.addHostPanel();
        window.resize(1400, 800);
        window.openSample();
        window.show();
        QVERIFY(activate(window));
        auto *toolBar = window.findChild<QToolBar *>("mrtoolbar");
        auto *field = toolBar->findChild<QLineEdit *>("st_input");
        field->setText("word");
        window.centralWidget()->setFocus();
        QTest::mouseMove(window.centralWidget());
        auto *scales = window.findChild<QComboBox *>("host_scale");
        const auto choose = [scales](const char *scale) {
            scales->setCurrentIndex(scales->findData(scale));
            Q_EMIT scales->activated(scales->currentIndex());
        };
        choose("1");
        const QImage before = settled(*toolBar);

        choose("2");
        QTRY_VERIFY(toolBar->grab().height() > before.height() * 3 / 2);
        choose("1");
        QTRY_VERIFY2(toolBar->grab().toImage() == before, "after another scale");
        Language::choose("r_language_en");
        QTRY_VERIFY(toolBar->grab().toImage() != before);
        QCOMPARE(field->placeholderText(), QString("Find text"));
        Language::choose("r_language_zh_CN");
        QTRY_VERIFY2(toolBar->grab().toImage() == before, "after another language");
        QCOMPARE(field->text(), QString("word"));
        Language::install("en");
        NewToolBar::uiStyle = 0;
    }

    void shouldTranslateFaultsTheLibraryAndTheDialogsOfQt()
    {
        Document document;
        QString error;
        QVERIFY(!document.open(OFD_SAMPLES "/broken-encrypted.ofd", &error));
        QCOMPARE(error, QString("The file is encrypted and cannot be opened."));
        QCOMPARE(MRHandWriteDialog().windowTitle(), QString("Handwriting settings"));
        QCOMPARE(QLocale().language(), QLocale::English);
        Language::install("zh_CN");
        QCOMPARE(MRHandWriteDialog().windowTitle(), QString("手写设置"));
        const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
        if (cancel == QString("Cancel"))
            QSKIP("The translations of Qt are not installed.");
        QCOMPARE(cancel, QString("取消"));
    }
};

QTEST_MAIN(ReaderLanguageTest)
#include "tst_readerlanguage.moc"
