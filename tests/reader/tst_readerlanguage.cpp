// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "shell/Description.h"
#include "shell/Language.h"
#include "shell/ReaderWindow.h"
#include "tests/support/ChineseTexts.h"

#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QDockWidget>
#include <QDomDocument>
#include <QLabel>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

/** The language of the reader, the library and the dialogs of Qt. */
class ReaderLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Language::install("en"); }

    void shouldShowEnglishTextsOnly()
    {
        QString error;
        ReaderWindow window(Description::read("release", "marodi", &error), QString());
        QCOMPARE(window.windowTitle(), QString("OFD Reader"));
        QVERIFY(window.findChildren<QDockWidget *>().size() >= 3);
        QCOMPARE(chineseTexts(window, window.findChild<QToolBar *>("mrtoolbar")), QStringList());
        window.openSample();
        QTRY_VERIFY2(window.windowTitle().endsWith(" (generated pages) - OFD Reader"),
                     qPrintable(window.windowTitle()));
        QStringList status;
        const QList<QLabel *> labels = window.statusBar()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            status.append(label->text());
        QVERIFY2(!status.filter(QRegularExpression("^Page 1 / ")).isEmpty(),
                 qPrintable(status.join('\n')));
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
