#include "Description.h"
#include "Document.h"
#include "Language.h"
#include "ReaderWindow.h"

#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QDockWidget>
#include <QDomDocument>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

#include <algorithm>

namespace {

QDomDocument description()
{
    QString error;
    return Description::read("release", "marodi", &error);
}

bool isOfToolBar(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const QToolBar *>(widget))
            return true;
    }
    return false;
}

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

/** The Chinese texts of a window but for those of the toolbar, which its description gives. */
QStringList chineseTexts(const QWidget &window)
{
    static const QRegularExpression chinese(
        QStringLiteral("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]"));
    QList<const QWidget *> widgets{&window};
    const QList<QWidget *> parts = window.findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        if (!isOfToolBar(part))
            widgets.append(part);
    }
    QStringList found;
    for (const QWidget *widget : widgets)
        found += textsOf(widget).filter(chinese);
    return found;
}

} // namespace

class TestReaderLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Language::install("en"); }

    void theWindowHasNoOtherTextsThanEnglish()
    {
        ReaderWindow window(description(), QString());
        QCOMPARE(window.windowTitle(), QStringLiteral("OFD Reader"));
        QVERIFY(window.findChildren<QDockWidget *>().size() >= 3);
        QCOMPARE(window.findChild<QDockWidget *>("host")->windowTitle(), QStringLiteral("Host"));
        QCOMPARE(chineseTexts(window), QStringList());
    }

    void theWindowTellsOfADocumentInEnglish()
    {
        ReaderWindow window(description(), QString());
        window.openSample();
        QTRY_VERIFY2(window.windowTitle().endsWith(" (generated pages) - OFD Reader"),
                     qPrintable(window.windowTitle()));
        const QList<QLabel *> labels = window.statusBar()->findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->text().startsWith("Page 1 / ");
        }));
    }

    void whatIsWrongWithAFileIsToldInEnglish()
    {
        Document document;
        QString error;
        QVERIFY(!document.open(OFD_SAMPLES "/broken-encrypted.ofd", &error));
        QCOMPARE(error, QStringLiteral("The file is encrypted and cannot be opened."));
    }

    void theLibraryAndTheToolkitFollow()
    {
        QCOMPARE(MRHandWriteDialog().windowTitle(), QStringLiteral("Handwriting settings"));
        QCOMPARE(QLocale().language(), QLocale::English);
    }

    void theToolkitSpeaksTheLanguageAsWell()
    {
        Language::install("zh_CN");
        if (QCoreApplication::translate("QPlatformTheme", "Cancel") == QLatin1String("Cancel"))
            QSKIP("The toolkit's own translations are not installed.");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("取消"));
        QCOMPARE(MRHandWriteDialog().windowTitle(), QStringLiteral("手写设置"));
    }
};

QTEST_MAIN(TestReaderLanguage)
#include "tst_readerlanguage.moc"
