// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPixmapCache>
#include <QTranslator>

#include <malloc.h>

using namespace Describe;

namespace {

/** A language that marks all texts of descriptions and of the library. */
class MarkedLanguage : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOfQt = context[0] == 'Q' && qstrcmp(context, "QObject") != 0;
        return isOfQt ? QString() : "<" + QString::fromUtf8(source) + " >";
    }
    bool isEmpty() const override { return false; }

    void install()
    {
        QCoreApplication::installTranslator(this);
        QTest::qWait(1);
    }
    void remove()
    {
        QCoreApplication::removeTranslator(this);
        QTest::qWait(1);
    }
};

/** What a user leaves behind in some minutes: tabs, menus, a zoom and a drop button. */
void use(TestHost &host)
{
    host.showEnabled();
    host.window().resize(1500, 700);
    host.toolBar()->Inner_DoDelayLoadMenuSlot();
    host.openEachTab([](const QString &) {});
    host.enableEverything();
    host.facade().DoSetPageInfoSlot(3, 12);
    host.facade().DoSetZoomModeSlot("vzmode_37p");
    host.facade().DoUpdateRecentFileSlot({"/tmp/one.ofd", "/tmp/two.ofd"});
    const QList<MRDropButton *> buttons = host.toolBar()->findChildren<MRDropButton *>();
    for (MRDropButton *button : buttons) {
        if (button->menu() && button->menu()->actions().size() > 1)
            button->DoSwitchSlot(button->menu()->actions().at(1));
    }
    QTest::qWait(1);
}

QList<QImage> pictures(TestHost &host)
{
    QList<QImage> taken;
    host.openEachTab([&taken, &host](const QString &) {
        QTest::qWait(1);
        taken.append(host.toolBar()->grab().toImage());
    });
    return taken;
}

/** Every text that is shown or spoken, each with the name of what has it. */
QStringList texts(const TestHost &host)
{
    static const char *const properties[]{"text",           "toolTip",         "statusTip",
                                          "accessibleName", "placeholderText", "title",
                                          "currentText",    "editable"};
    QStringList found;
    const QList<QObject *> objects = host.toolBar()->findChildren<QObject *>();
    for (const QObject *object : objects) {
        // Copies in menus of what a row has no room for are made when they are needed.
        if (object->property("position") == "toolbarextend")
            continue;
        QStringList line;
        for (const char *property : properties)
            line.append(object->property(property).toString());
        if (const auto *button = qobject_cast<const QAbstractButton *>(object))
            line.append(QString::number(button->minimumWidth()));
        if (const auto *box = qobject_cast<const QComboBox *>(object)) {
            for (int i = 0; i < box->count(); ++i)
                line.append(box->itemText(i));
        }
        line.removeAll(QString());
        found.append(line.join('|'));
    }
    found.removeAll(QString());
    return found;
}

size_t bytesInUse()
{
    // Qt keeps the pixmaps of deleted icons until the cache is full.
    QPixmapCache::clear();
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

/** The texts of descriptions in another language. */
class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAllAsBuiltInTheLanguage_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("path");
        QTest::newRow("marodi") << marodi << SHOWCASE;
        QTest::newRow("lum") << lum << SHOWCASE;
        QTest::newRow("marodi release")
            << marodi << ":/mr_toolbar/Resources/marodi/mr_toolbar.release.xml";
        QTest::newRow("lum debug") << lum << ":/mr_toolbar/Resources/lum/mr_toolbar.debug.xml";
    }

    void shouldShowAllAsBuiltInTheLanguage()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        MarkedLanguage marked;
        const auto host = TestHost::withFile(path);
        const auto unused = TestHost::withFile(path);
        use(*host);
        const QList<QImage> before = pictures(*host);
        const QStringList textsBefore = texts(*host);

        marked.install();
        const auto built = TestHost::withFile(path);
        use(*built);
        QCOMPARE(texts(*host), texts(*built));
        QTRY_VERIFY(pictures(*host) == pictures(*built));
        QVERIFY(pictures(*host) != before);
        use(*unused); // Its rows and menus have not been made before.
        QTRY_VERIFY(pictures(*unused) == pictures(*built));

        marked.remove();
        QCOMPARE(texts(*host), textsBefore);
        QTRY_VERIFY(pictures(*host) == before);
    }

    void shouldKeepWhatIsTyped()
    {
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE));
        use(*host);
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

    void shouldNotGrow()
    {
        MarkedLanguage marked;
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE));
        use(*host);
        const auto change = [&marked](int times) {
            for (int i = 0; i < times; i += 2) {
                marked.install();
                marked.remove();
            }
        };
        change(20);
        const auto objects = host->window().findChildren<QObject *>().size();
        const size_t bytes = bytesInUse();
        change(500);
        QCOMPARE(host->window().findChildren<QObject *>().size(), objects);
        QVERIFY2(bytesInUse() < bytes + size_t{64} * 1024, "the heap has grown");
    }
};

QTEST_MAIN(TranslationTest)
#include "tst_translation.moc"
