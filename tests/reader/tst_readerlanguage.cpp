// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "shell/Description.h"
#include "shell/Language.h"
#include "shell/ReaderWindow.h"
#include "tests/support/ChineseTexts.h"

#include <toolbar/NewToolBar.h>
#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QDomDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

namespace {

/** Opens two more tabs and goes back to the first one. */
void openThreeTabs(const QToolBar &toolBar)
{
    QList<QPushButton *> tabs;
    const auto buttons = toolBar.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->isVisible() && button->property("module") == "tabbutton")
            tabs.append(button);
    }
    QVERIFY(tabs.size() > 2);
    for (QPushButton *tab : {tabs.at(1), tabs.at(2), tabs.at(0)})
        QTest::mouseClick(tab, Qt::LeftButton);
}

void typeZoom(const QToolBar &toolBar)
{
    const auto boxes = toolBar.findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        if (!box->isVisible() || !box->isEditable())
            continue;
        box->lineEdit()->setFocus();
        box->lineEdit()->selectAll();
        QTest::keyClicks(box->lineEdit(), "37");
        QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    }
}

/** What a user leaves behind: opened tabs, a menu, a search and a zoom. Returns the toolbar. */
QToolBar *use(ReaderWindow &window)
{
    window.addHostPanel();
    window.resize(1400, 800);
    window.openSample();
    window.show();
    window.activateWindow();
    QGuiApplication::sync();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("The window is not active");
    auto *toolBar = window.findChild<QToolBar *>("mrtoolbar");
    auto *field = toolBar->findChild<QLineEdit *>("st_input");
    // The click returns when its menu has closed.
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, &window, [] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
    closing.start(100);
    QTest::mouseClick(toolBar->findChild<QPushButton *>("menu_file"), Qt::LeftButton);
    closing.stop();
    field->setText("word");
    openThreeTabs(*toolBar);
    typeZoom(*toolBar);
    window.centralWidget()->setFocus();
    QTest::mouseMove(window.centralWidget());
    QTest::qWait(50);
    return toolBar;
}

} // namespace

/** The language of the reader, the library and the dialogs of Qt. */
class ReaderLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", "/nowhere"); // Not the user's own settings.
        Language::install("en");
    }

    void shouldShowEnglishTextsOnly()
    {
        QString error;
        ReaderWindow window(Description::read("release", "marodi", &error), QString());
        window.addHostPanel();
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
        auto *toolBar = use(window);
        auto *field = toolBar->findChild<QLineEdit *>("st_input");
        const auto picture = [toolBar] {
            QImage last;
            QImage next = toolBar->grab().toImage();
            while (next != last) {
                last = next;
                QTest::qWait(50);
                next = toolBar->grab().toImage();
            }
            return next;
        };
        auto *scales = window.findChild<QComboBox *>("host_scale");
        const auto choose = [scales](const char *scale) {
            scales->setCurrentIndex(scales->findData(scale));
            Q_EMIT scales->activated(scales->currentIndex());
        };
        choose("1");
        const QImage before = picture();

        choose("2");
        QTRY_VERIFY(picture().height() > before.height() * 3 / 2);
        choose("1");
        QTRY_VERIFY2(picture() == before, "after another scale");
        Language::choose("r_language_en");
        QTRY_VERIFY(picture() != before);
        QCOMPARE(field->placeholderText(), QString("Find text"));
        Language::choose("r_language_zh_CN");
        QTRY_VERIFY2(picture() == before, "after another language");
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
