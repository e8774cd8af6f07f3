#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QLabel>
#include <QLineEdit>

using namespace Describe;

namespace {

QString tool(const QString &name)
{
    return item(name, "checkable='true'");
}

} // namespace

/** Checking by name, and what goes with it: tools, drop buttons, resetting. */
class TestToolState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkingByNameIsSilent()
    {
        const QString tool = "group='tools' checkable='true'";
        TestHost host(row(button("pen", tool + " checked='true'") + button("ink", tool)
                          + button("off", tool + " usable='false'")
                          + button("hid", tool + " visible='false'") + button("menu_ink")));
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        QString name = "ink:red:thick";
        host.facade().DoSetControlCheckedStateSlot(name, true);
        QCOMPARE(name, QStringLiteral("ink"));
        QVERIFY(host.action("ink")->isChecked() && !host.action("pen")->isChecked());
        host.setChecked("ink", true); // Checked already: nothing to be silent about.
        for (const char *refusing : {"off", "hid"}) {
            host.setChecked(refusing, true);
            QVERIFY(host.action(refusing)->isChecked());
            QVERIFY(host.facade().GetControlCheckedState(refusing));
        }
        QVERIFY(!host.action("off")->isEnabled() && !host.action("ink")->isChecked());
        host.setChecked("hid", false);
        QVERIFY(!host.action("hid")->isChecked());
        QVERIFY(active.isEmpty());
        host.action("ink")->trigger();
        host.action("menu_ink")->trigger(); // The same command once more.
        QCOMPARE(TestHost::texts(active), QStringList({"ink", "ink"}));
    }

    void aStateSetByNameLeavesAControlToItsNextStates()
    {
        TestHost host(row("<menu name='m' text='M' checkable='true'>" + tool("one") + "</menu>"));
        host.setChecked("m", true);
        for (const bool usable : {false, true}) {
            host.setUsable("m", usable);
            QCOMPARE(host.facade().GetCompositeEnable("m"), usable);
        }
    }

    void anUnavailableControlReportsNothingAtFirst()
    {
        TestHost host(row(button("c", "available='false' checkable='true'") + button("menu_c")));
        host.setUsable("nothing", true);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.action("menu_c")->trigger();
        QVERIFY(active.isEmpty());
        QVERIFY(host.action("c")->isChecked());
        host.action("menu_c")->trigger();
        QCOMPARE(TestHost::texts(active), QStringList("c"));
        QVERIFY(!host.action("c")->isChecked());
        host.setUsable("c", true); // From now on it is like any other.
        QVERIFY(host.action("c")->isEnabled());
    }

    void anyOtherStateEndsTheShapeTool_data()
    {
        QTest::addColumn<bool>("endsIt");
        QTest::newRow("tw_watermark_add") << false;
        QTest::newRow("tp_else") << false;
        QTest::newRow("my tp_tool:x") << false;
        QTest::newRow("tool") << true;
        QTest::newRow("unknown") << true;
    }

    void anyOtherStateEndsTheShapeTool()
    {
        const QString menu = "<menu name='%1' text='%1' checkable='true' switchable='true'>";
        TestHost host(row(menu.arg("tp_shape") + tool("tp_arrow") + "</menu>" + menu.arg("pens")
                          + tool("tool") + "</menu>"));
        const auto *shapes = host.find<MRDropButton>("tp_shape");
        const auto *pens = host.find<MRDropButton>("pens");
        for (const bool checked : {true, false}) {
            host.setChecked("tp_arrow", true);
            QVERIFY(shapes->isChecked()); // In line with its menu.
            host.setChecked(QTest::currentDataTag(), checked);
            QTEST(!shapes->isChecked(), "endsIt");
            QCOMPARE(pens->isChecked(), host.action("tool")->isChecked());
        }
    }

    void aDropButtonPassesOnFromAHiddenEntry_data()
    {
        QTest::addColumn<QString>("hidden"); // In this order.
        QTest::addColumn<int>("current");
        QTest::newRow("index='2' (another)") << "1" << 2;
        QTest::newRow("index='2'") << "2" << 3;
        QTest::newRow("index='3'") << "3" << 1;
        QTest::newRow("index='1'") << "21" << 3;
        QTest::newRow("index='1' (no other)") << "231" << 1;
        QTest::newRow("index='2' withaction='true'") << "2" << 1;
        QTest::newRow("index='2' withaction='true' (last)") << "12" << 3;
    }

    void aDropButtonPassesOnFromAHiddenEntry()
    {
        QFETCH(QString, hidden);
        const QString attributes = QString(QTest::currentDataTag()).section(" (", 0, 0);
        TestHost host(row("<menu name='m' checkable='true' " + attributes + ">" + tool("1")
                          + tool("2") + tool("3") + "</menu>"));
        for (const QChar name : std::as_const(hidden))
            host.setVisible(name, false);
        const auto *button = host.find<MRDropButton>("m");
        QTEST(button->GetCurrentAction()->objectName().toInt(), "current");
    }

    void resettingLeavesEnabledAndVisibleStatesAlone()
    {
        TestHost host(row(button("on", "checkable='true' checked='true'") + button("off")
                          + "<menu name='m' text='M' checkable='true' switchable='true'>"
                          + tool("one")
                          + "</menu><lineedit name='d_gotopage'/>"
                            "<label name='d_totalpagelabel' text='/'/>"));
        host.setUsable("off", false);
        host.setVisible("off", false);
        host.setUsable("d_gotopage", false);
        host.facade().DoSetPageInfoSlot(3, 12);
        host.setChecked("one", true);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.facade().DoResetToolbarSlot();
        QVERIFY(!host.action("on")->isChecked() && !host.action("one")->isChecked());
        QVERIFY(!host.find<MRDropButton>("m")->isChecked());
        QVERIFY(active.isEmpty());
        QVERIFY(!host.action("off")->isVisible() && host.action("on")->isEnabled());
        QVERIFY(!host.facade().GetCompositeEnable("off"));
        QVERIFY(!host.facade().GetCompositeEnable("d_gotopage"));
        QCOMPARE(host.find<QLineEdit>("d_gotopage")->text(), QString());
        QCOMPARE(host.find<QLabel>("d_totalpagelabel")->text(), QStringLiteral("/ "));
    }
};

QTEST_MAIN(TestToolState)
#include "tst_toolstate.moc"
