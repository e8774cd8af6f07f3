// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "shell/Description.h"
#include "shell/Language.h"
#include "shell/ReaderWindow.h"

#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QDockWidget>
#include <QDomDocument>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

namespace {

QStringList textsOf(const QWidget *widget)
{
    QStringList texts{widget->windowTitle(), widget->toolTip(), widget->accessibleName(),
                      widget->property("text").toString(),
                      widget->property("placeholderText").toString()};
    if (const auto *list = qobject_cast<const QListWidget *>(widget)) {
        for (int row = 0; row < list->count(); ++row)
            texts.append(list->item(row)->text());
    }
    return texts;
}

bool isOfToolBar(const QWidget *widget)
{
    return widget
           && (qobject_cast<const QToolBar *>(widget) || isOfToolBar(widget->parentWidget()));
}

/** The Chinese texts of a window without those of the toolbar, which are the description's. */
QStringList chineseTexts(const QWidget &window)
{
    static const QRegularExpression chinese("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]");
    QStringList found = textsOf(&window).filter(chinese);
    const QList<QWidget *> parts = window.findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        if (!isOfToolBar(part))
            found += textsOf(part).filter(chinese);
    }
    return found;
}

} // namespace

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
        QCOMPARE(chineseTexts(window), QStringList());

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

    void shouldReportTheFaultOfAFileInEnglish()
    {
        Document document;
        QString error;
        QVERIFY(!document.open(OFD_SAMPLES "/broken-encrypted.ofd", &error));
        QCOMPARE(error, QString("The file is encrypted and cannot be opened."));
    }

    void shouldTranslateTheLibraryAndSetTheLocale()
    {
        QCOMPARE(MRHandWriteDialog().windowTitle(), QString("Handwriting settings"));
        QCOMPARE(QLocale().language(), QLocale::English);
    }

    void shouldTranslateTheDialogsOfQt()
    {
        Language::install("zh_CN");
        if (QCoreApplication::translate("QPlatformTheme", "Cancel") == QString("Cancel"))
            QSKIP("The translations of Qt are not installed.");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("取消"));
        QCOMPARE(MRHandWriteDialog().windowTitle(), QString("手写设置"));
    }
};

QTEST_MAIN(ReaderLanguageTest)
#include "tst_readerlanguage.moc"
