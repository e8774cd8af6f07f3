// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/ChineseTexts.h"
#include "tests/support/Describe.h"
#include "tests/support/Icons.h"
#include "tests/support/TestHost.h"
#include "toolbar/handwrite/MRHandWriteDialog.h"

#include <QComboBox>
#include <QTranslator>

#include <algorithm>

using namespace Describe;

namespace {

/** Installs the translation of a language for the time of one test, as a host would. */
class Language
{
public:
    explicit Language(const QLocale &locale)
    {
        if (m_translator.load(locale, "mrtoolbar", "_", ":/mr_toolbar/translations"))
            QCoreApplication::installTranslator(&m_translator);
    }
    void remove() { QCoreApplication::removeTranslator(&m_translator); }

private:
    QTranslator m_translator; // Its destructor removes it from the application.
};

const QLocale english(QLocale::English);
const QLocale chinese(QLocale::Chinese, QLocale::China);

QString textOf(const QWidget &dialog, const QString &name)
{
    return dialog.findChild<QWidget *>(name)->property("text").toString();
}

} // namespace

/** The translation of the library's own texts. */
class LanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindTheCatalogueOfALocale()
    {
        for (const QLocale &locale : {english, QLocale("en_GB"), chinese, QLocale("fr_FR")}) {
            const Language language(locale);
            const bool isEnglish = locale.language() == QLocale::English;
            QCOMPARE(MRHandWriteDialog().windowTitle(),
                     QString(isEnglish ? "Handwriting settings" : "手写设置"));
        }
    }

    void shouldTranslateTheDialogOnAChangeOfLanguage()
    {
        MRHandWriteDialog dialog;
        const QStringList before = chineseTexts(dialog);
        QVERIFY(before.size() > 40);
        Language language(english);
        QTRY_COMPARE(chineseTexts(dialog), QStringList());
        language.remove();
        QTRY_COMPARE(chineseTexts(dialog), before);
        QCOMPARE(dialog.windowTitle(), QString("手写设置"));
    }

    void shouldKeepTheShownTrackOnAChangeOfLanguage()
    {
        const QTemporaryDir folder;
        const QString path = savedPicture(folder);
        QVERIFY(!path.isEmpty());
        Track track{1, QColor(1, 2, 3), 5, 12, 2, true, path};
        QList<Track *> tracks{&track};
        MRHandWriteDialog dialog;
        dialog.SetCommonTrackInfo(tracks);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTRY_COMPARE(textOf(dialog, "labelPreview"), QString()); // It shows a picture instead.
        const Language language(english);
        QTRY_COMPARE(dialog.windowTitle(), QString("Handwriting settings"));
        QCOMPARE(textOf(dialog, "labelPreview"), QString());
        QCOMPARE(textOf(dialog, "labelThickness"), QString("5"));
        QCOMPARE(textOf(dialog, "pushButtonTrack1"), QString());
        QCOMPARE(textOf(dialog, "pushButtonTrack2"), QString("Pen 2"));
        QCOMPARE(textOf(dialog, "pushButtonColor1"), QString());
        QVERIFY(dialog.findChild<QPushButton *>("pushButtonOpacity75p")->isChecked());
    }

    void shouldTranslateTheHintOfTheZoomBoxAndTheNamesOfTheArrows()
    {
        for (const auto &[locale, hint, name] :
             {std::tuple{english, ">Invalid Char<", "Scroll left"},
              {chinese, ">无效字符<", "向左滚动"}}) {
            const Language language(locale);
            TestHost host(row(
                comboBox("v_zoom", choice("vzmode_100p", "100%"), "index='1' editable='true'")));
            QVERIFY(host.find<QComboBox>("v_zoom")->toolTip().contains(QString(hint)));
            const QList<QPushButton *> buttons = host.toolBar()->findChildren<QPushButton *>();
            QCOMPARE(std::count_if(buttons.begin(), buttons.end(),
                                   [wanted = QString(name)](const QPushButton *button) {
                                       return button->accessibleName() == wanted;
                                   }),
                     2);
        }
    }
};

QTEST_MAIN(LanguagesTest)
#include "tst_languages.moc"
