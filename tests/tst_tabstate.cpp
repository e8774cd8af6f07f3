#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QStackedWidget>

using namespace Describe;

namespace {

/** "a", which is on show, and "b". */
QString twoTabs()
{
    return section("tabbar", tab("a", button("x"), "checked='true'") + tab("b", button("y")));
}

QString foldControls()
{
    return section("addtional", button("h_info") + button("t_fold"));
}

QStackedWidget *stack(const TestHost &host)
{
    return host.find<QStackedWidget>(QStringLiteral("tabwidget"));
}

} // namespace

/** What becomes of the tab on show when its own state changes. */
class TestTabState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabOnShowFoldsAndMovesOn_data()
    {
        QTest::addColumn<int>("current"); // Of three tabs.
        QTest::addColumn<QStringList>("disabled");
        QTest::addColumn<int>("shown");
        QTest::newRow("the next one") << 0 << QStringList() << 1;
        QTest::newRow("wraps around") << 2 << QStringList() << 0;
        QTest::newRow("the next one is disabled") << 0 << QStringList("1") << 0;
        QTest::newRow("no other one is usable") << 1 << QStringList{"0", "2"} << 1;
    }

    void theTabOnShowFoldsAndMovesOn()
    {
        QFETCH(int, current);
        QFETCH(QStringList, disabled);
        const QString name = QString::number(current);
        QString tabs;
        for (const char *number : {"0", "1", "2"})
            tabs += tab(number, button("command"), name == number ? "checked='true'" : "");
        for (const bool hides : {false, true}) {
            TestHost host(section("tabbar", tabs) + foldControls());
            host.showEnabled();
            for (const QString &other : std::as_const(disabled))
                host.find<QPushButton>(other)->setEnabled(false);
            hides ? host.setVisible(name, false) : host.setUsable(name, false);
            QTEST(stack(host)->currentIndex(), "shown");
            QVERIFY(!host.find<MRMainToolBar>(name)->isVisible());
            const auto *tabButton = host.find<QPushButton>(name);
            QVERIFY(hides ? !tabButton->isVisible() : !tabButton->isEnabled());
            QVERIFY(!host.find<QPushButton>("t_fold")->isVisible());
            QVERIFY(host.find<QPushButton>("t_extend")->isVisible());
            if (hides || stack(host)->currentIndex() == current)
                continue;
            host.find<QPushButton>(name)->setEnabled(true);
            host.click(name);
            QVERIFY2(host.find<MRMainToolBar>(name)->isVisible(), "The row has not come back");
        }
    }

    void enablingTheTabOnShowMovesOnToo()
    {
        TestHost host(twoTabs() + section("appbutton", "<menu name='a' text='App'/>"));
        host.find<MRMenuButton>("a")->setEnabled(false);
        for (const bool isFurther : {false, true}) { // Moving on ends the search for the name.
            host.setUsable("a", true);
            QCOMPARE(stack(host)->currentIndex(), 1);
            QCOMPARE(host.find<MRMenuButton>("a")->isEnabled(), isFurther);
        }
    }

    void aHostThatSendsAllStatesAgainStillMovesOn()
    {
        TestHost host(twoTabs() + foldControls());
        host.show();
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&host] { host.setUsable("a", false); });
        host.setUsable("a", false);
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(host.find<MRMainToolBar>("b")->isVisible());
    }
};

QTEST_MAIN(TestTabState)
#include "tst_tabstate.moc"
