#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/ZoomText.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

using namespace Describe;

namespace {

QString grouped(const QString &name, const QString &group)
{
    return button(name, QStringLiteral("group='%1' checkable='true'").arg(group));
}

/** A zoom box of two words and six percentages, and the buttons of the zoom modes. */
QString zoomControls(int index)
{
    QString items;
    const QList<QPair<QString, QString>> entries{{"fitpage", "Page"}, {"original", "Actual"},
                                                 {"10p", "10%"},      {"50p", "50%"},
                                                 {"100p", "100%"},    {"6400p", "6400%"}};
    for (const auto &[mode, text] : entries)
        items += QStringLiteral("<item action='vzmode_%1' text='%2'/>").arg(mode, text);
    return grouped("vzmode_original", "zmode") + grouped("vzmode_fitpage", "zmode")
           + QStringLiteral("<combobox name='v_zoom' index='%1' editable='true'>%2</combobox>")
                 .arg(index)
                 .arg(items)
           + grouped("vzmode_custom", "zmode");
}

constexpr int predefined = 6;
constexpr int fiftyPercent = 4; // 1-based, as descriptions count.

/** A host on the screen with a zoom box. */
class ZoomHost : public TestHost
{
public:
    explicit ZoomHost(int index = fiftyPercent)
        : TestHost(row(zoomControls(index)))
        , box(find<QComboBox>(QStringLiteral("v_zoom")))
        , modes(&facade(), &MRToolBar::DoSetZoomMode)
    {
        showEnabled();
    }

    void type(const QString &text)
    {
        QVERIFY(box->isEditable());
        QTest::mouseClick(box->lineEdit(), Qt::LeftButton);
        QTRY_VERIFY(box->hasFocus());
        box->lineEdit()->selectAll();
        QTest::keyClicks(box, text);
    }

    void enter(const QString &text)
    {
        type(text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    /** The modes that the user has asked for since the last call. */
    QStringList takeModes()
    {
        const QStringList taken = texts(modes);
        modes.clear();
        return taken;
    }

    bool isChecked(const QString &name) const { return action(name)->isChecked(); }

    QComboBox *box;
    QSignalSpy modes;
};

} // namespace

class TestPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zoomNumbers_data()
    {
        QTest::addColumn<QString>("number"); // Clamped; empty for none. The case is what is typed.
        for (const char *same : {"37", "37.5", "12.50", "10.0", "6400", "050"})
            QTest::newRow(same) << same;
        for (const char *followed : {"37.5abc", "37.5%", "37.5 %", "37.5.1"})
            QTest::newRow(followed) << "37.5";
        for (const char *small : {"5", "0", "9.99", "1.2.3", "5%"})
            QTest::newRow(small) << "10";
        for (const QString &large : {QString("9000"), QString("6400.5"), QString(400, '9')})
            QTest::newRow(qPrintable(large)) << "6400";
        for (const char *wrong : {"", "abc", ".5", "5.", "5.a", "-5", " 5", "%", "\u0663\u0667"})
            QTest::newRow(wrong) << "";
    }

    void zoomNumbers()
    {
        const auto number = ZoomText::number(QTest::currentDataTag());
        QTEST(number ? ZoomText::clamped(*number) : QString(), "number");
    }

    void zoomModes()
    {
        QCOMPARE(ZoomText::percentage("vzmode_37.5p").value_or(0.0F), 37.5F);
        QCOMPARE(ZoomText::percentage("VZMODE_100P").value_or(0.0F), 100.0F);
        for (const char *none : {"vzmode_fitpage", "vzmode_clip", "vzmode_", ""})
            QVERIFY2(!ZoomText::percentage(none), none);
        QCOMPARE(ZoomText::numberOfMode("vzmode_37.5p"), QStringLiteral("37.5"));
    }

    void wrongZoomTexts()
    {
        for (const char *text : {"a", "12x", "5=", "+5", "5_", "\u4e2d", "5 \u9fa5"})
            QVERIFY2(ZoomText::isInvalid(text), text);
        for (const char *text : {"", "5", "5.5%", "5 x", "-5", "\u3042"})
            QVERIFY2(!ZoomText::isInvalid(text), text);
    }

    void totalsStandInsideTheirLabel_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QList<int>>("totals"); // 0 clears.
        QTest::addColumn<QString>("shown");
        QTest::newRow("shipped") << "/" << QList<int>{25} << "/25";
        QTest::newRow("next total") << "/" << QList<int>{25, 120} << "/120";
        QTest::newRow("shorter") << "/" << QList<int>{120, 7} << "/7";
        QTest::newRow("cleared") << "/" << QList<int>{25, 0} << "/ ";
        QTest::newRow("cleared twice") << "/" << QList<int>{25, 0, 0} << "/ ";
        QTest::newRow("after clearing") << "/" << QList<int>{25, 0, 9} << "/9";
        QTest::newRow("nothing to clear") << "/" << QList<int>{0, 9} << "/9";
        QTest::newRow("text around") << "of pages" << QList<int>{12, 3} << "of3pages";
    }

    void totalsStandInsideTheirLabel()
    {
        QFETCH(QString, label);
        QFETCH(QList<int>, totals);
        // Without a label of its own, the total stands in the caption of the field.
        for (const char *described : {"<lineedit name='d_gotopage' text='x'/>"
                                      "<label name='d_totalpagelabel' text='%1'/>",
                                      "<lineedit name='d_gotopage' text='%1'/>"}) {
            TestHost host(row(QString(described).arg(label)));
            for (const int total : std::as_const(totals))
                host.facade().DoSetPageInfoSlot(total == 0 ? 0 : 1, total);
            const auto *own = host.find<QLabel>("d_totalpagelabel");
            QTEST((own ? own : host.find<QLabel>("prompt"))->text(), "shown");
            const QString page = host.find<QLineEdit>("d_gotopage")->text();
            QCOMPARE(page, QString(totals.last() == 0 ? "" : "1"));
        }
    }

    void aTotalThatGrowsPushesNothingOffTheRow()
    {
        TestHost host(row("<combobox name='v_zoom' text='Zoom' editable='true'>"
                          "<item action='vzmode_100p' text='100%'/></combobox><sperator/>"
                          "<lineedit name='d_gotopage' text='Page'/>"
                          "<label name='d_totalpagelabel' text='/'/>"
                          "<label name='d_pagelabel' text='pages'/>"));
        host.facade().DoSetPageInfoSlot(3, 12);
        host.window().resize(640, 100);
        host.showEnabled();
        QTRY_VERIFY2(host.find<QLabel>("d_pagelabel")->isVisible(), "There is room for it");
    }

    void pagesAreRefusedOutsideTheDocument_data()
    {
        QTest::addColumn<int>("page"); // 0 when refused. What is entered names the case.
        QTest::newRow("1") << 1;
        QTest::newRow("25") << 25;
        QTest::newRow("7/25") << 7;
        for (const char *refused : {"26", "0", "-3", "x", "99999999999999"})
            QTest::newRow(refused) << 0;
    }

    void pagesAreRefusedOutsideTheDocument()
    {
        QFETCH(int, page);
        TestHost host(row("<lineedit name='d_gotopage' text='all pages'/>"));
        host.showEnabled();
        QSignalSpy pages(&host.facade(), &MRToolBar::DoGotoPage);
        auto *field = host.find<QLineEdit>("d_gotopage");
        field->setValidator(nullptr); // It lets only some of this pass.
        const auto enter = [field](const QString &text) {
            field->setText(text);
            QTest::keyClick(field, Qt::Key_Return);
        };
        enter("1");
        QVERIFY(pages.isEmpty()); // No document is open.
        QCOMPARE(field->text(), QStringLiteral("0/0"));
        host.facade().DoSetPageInfoSlot(3, 25);
        enter(QTest::currentDataTag());
        QCOMPARE(TestHost::texts(pages), page ? QStringList(QString::number(page)) : QStringList());
        enter("99"); // The page entered stands as the current one without an answer of the host.
        QCOMPARE(field->text(), QStringLiteral("%1/25").arg(page ? page : 3));
    }

    void typedZooms_data()
    {
        QTest::addColumn<QString>("mode"); // Empty for none. What is typed names the case.
        QTest::addColumn<QString>("shown");
        const QString none;
        QTest::newRow("37") << QString("vzmode_37p") << "37%";
        QTest::newRow("64") << QString("vzmode_64p") << "64%"; // A longer entry begins so.
        QTest::newRow("37.5xyz") << QString("vzmode_37.5p") << "37.5%";
        QTest::newRow("42%") << QString("vzmode_42p") << "42%";
        QTest::newRow("100") << none << "100%";
        QTest::newRow("5") << none << "10%";
        QTest::newRow("9000") << none << "6400%";
        for (const char *unchanged : {"50", "abc", "5."})
            QTest::newRow(unchanged) << none << "50%";
    }

    void typedZooms()
    {
        QFETCH(QString, mode);
        ZoomHost host;
        host.enter(QTest::currentDataTag());
        QCOMPARE(host.takeModes().join(' '), mode);
        QTEST(host.box->currentText(), "shown");
        QCOMPARE(host.box->count(), predefined + (mode.isEmpty() ? 0 : 1));
        QVERIFY(!host.box->hasFocus());
    }

    void thereIsOneCustomZoomAtATime()
    {
        ZoomHost host;
        for (const char *number : {"37", "41", "41"}) {
            host.enter(number);
            const QString text = QString(number) + '%';
            QCOMPARE(host.box->count(), predefined + 1);
            QCOMPARE(host.box->itemText(predefined), text);
            QCOMPARE(host.box->currentIndex(), predefined);
            QCOMPARE(host.box->currentText(), text);
            QCOMPARE(host.takeModes(), QStringList(QStringLiteral("vzmode_%1p").arg(number)));
        }
        QTest::mouseClick(host.box->lineEdit(), Qt::LeftButton);
        QTest::keyClick(host.box, Qt::Key_Up); // The list is walked with the arrows, too.
        QCOMPARE(host.takeModes(), QStringList("vzmode_6400p"));
    }

    void aZoomChosenFromTheListIsReported()
    {
        ZoomHost host(1);
        QVERIFY(!host.box->isEditable());
        host.box->setFocus();
        QTest::keyClick(host.box, Qt::Key_End);
        QCOMPARE(host.takeModes(), QStringList("vzmode_6400p"));
        QVERIFY(host.box->isEditable());
        host.enter("12");
        QCOMPARE(host.takeModes(), QStringList("vzmode_12p"));
        host.box->setCurrentIndex(0);
        QCOMPARE(host.takeModes(), QStringList("vzmode_fitpage"));
        QVERIFY(!host.box->isEditable());
    }

    void zoomsThatTheHostReports_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("checked");
        const QString custom = "vzmode_custom";
        QTest::newRow("vzmode_100p") << QString("100%") << "vzmode_original";
        QTest::newRow("vzmode_10p") << "10%" << custom;
        QTest::newRow("vzmode_50p") << "50%" << custom; // On show already.
        QTest::newRow("vzmode_37p") << "37%" << custom;
        QTest::newRow("vzmode_37.5P") << "37.5%" << custom;
        QTest::newRow("vzmode_fitpage") << "Page" << QString();
    }

    void zoomsThatTheHostReports()
    {
        QFETCH(QString, shown);
        ZoomHost host;
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        int answers = 0;
        // A host that confirms whatever it hears must not start a loop.
        connect(&host.facade(), &MRToolBar::DoSetZoomMode, &host.facade(), [&](QString heard) {
            QVERIFY(++answers < 5);
            host.facade().DoSetZoomModeSlot(heard);
        });
        host.facade().DoSetZoomModeSlot(QTest::currentDataTag());
        QVERIFY(answers <= 1);
        QCOMPARE(host.box->currentText(), shown);
        QCOMPARE(host.box->isEditable(), shown.endsWith('%'));
        QCOMPARE(host.box->count(), predefined);
        QVERIFY(active.isEmpty());
        QString checked;
        for (const char *name : {"vzmode_original", "vzmode_fitpage", "vzmode_custom"})
            checked += QString(host.isChecked(name) ? name : "");
        QTEST(checked, "checked");
    }

    void afterACustomReportEveryEntryCanBeChosen()
    {
        ZoomHost host;
        host.facade().DoSetZoomModeSlot("vzmode_37p");
        QVERIFY(host.takeModes().isEmpty());
        host.enter("letters");
        QCOMPARE(host.box->currentText(), QStringLiteral("37%"));
        host.box->setCurrentIndex(fiftyPercent - 1); // On show before the report.
        QCOMPARE(host.takeModes(), QStringList("vzmode_50p"));
        host.enter("38");
        host.facade().DoSetZoomModeSlot("vzmode_38p"); // The host confirms.
        QCOMPARE(host.takeModes(), QStringList("vzmode_38p"));
        QCOMPARE(host.box->currentIndex(), predefined);
        host.facade().DoSetZoomModeSlot("vzmode_fitpage");
        QCOMPARE(host.box->currentText(), QStringLiteral("Page"));
    }

    void wrongTextShowsAHint()
    {
        ZoomHost host;
        host.type("12");
        QVERIFY(!QToolTip::isVisible());
        QTest::keyClicks(host.box, "x");
        QTRY_VERIFY(QToolTip::isVisible());
        for (const char *line : {"Invalid Char", "Please Input a Number or Point"})
            QVERIFY2(QToolTip::text().contains(line), qPrintable(QToolTip::text()));
        QTest::keyClick(host.box, Qt::Key_Backspace);
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(host.box->currentText(), QStringLiteral("12"));
    }

    void backgroundsAreMirroredAndReported()
    {
        const QStringList names{"default", "daytime", "nighttime", "eyeguard", "parchment"};
        QString controls;
        for (const QString &name : names)
            controls += grouped("background_" + name, "bggroup");
        TestHost host(row(controls));
        QList<int> styles;
        connect(&host.facade(), &MRToolBar::DoSetBackground, &host.facade(),
                [&styles](BackgroundStyle heard) { styles.append(heard); });
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        for (const int style : {1, 7, 2, -1, 3, 4, 0}) { // Unknown ones are the default.
            host.facade().DoSetBackgroundSlot(static_cast<BackgroundStyle>(style));
            for (const QString &name : names)
                QCOMPARE(host.action("background_" + name)->isChecked(),
                         name == names.value(style, "default"));
        }
        QVERIFY(styles.isEmpty()); // The host is not told of its own choice.
        for (const QString &name : names)
            host.action("background_" + name)->trigger();
        QCOMPARE(styles, QList<int>({0, 1, 2, 3, 4}));
        QVERIFY(active.isEmpty());
    }
};

QTEST_MAIN(TestPages)
#include "tst_pages.moc"
