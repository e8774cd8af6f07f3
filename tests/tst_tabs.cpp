#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QStackedWidget>

using namespace Describe;

namespace {

QString tabBar(const QString &tabs)
{
    return section("tabbar", tabs) + section("addtional", "<button name='t_fold'/>");
}

/** One tab, on show, with these controls. */
QString oneTab(const QString &controls, const QString &more = {})
{
    return tabBar(tab(QStringLiteral("only"), controls, QStringLiteral("checked='true' ") + more));
}

/** Tabs "0" to "2" with a button each. */
QString threeTabs(const QString &shown = QStringLiteral("0"))
{
    QString tabs;
    for (const QString name : {"0", "1", "2"})
        tabs += tab(name, button("command" + name), name == shown ? "checked='true'" : "");
    return tabBar(tabs);
}

QStackedWidget *stack(const TestHost &host)
{
    return host.find<QStackedWidget>(QStringLiteral("tabwidget"));
}

} // namespace

class TestTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCheckedTabIsOnShowWhateverItsPosition()
    {
        for (const QString shown : {"0", "1", "2"}) {
            TestHost host(threeTabs(shown));
            host.show();
            for (const QString name : {"0", "1", "2"}) {
                const auto *row = host.find<MRMainToolBar>(name);
                QCOMPARE(row->isVisible(), name == shown);
                QCOMPARE(row->isFilled(), name == shown);
                QCOMPARE(row->actions().size(), name == shown ? 1 : 0);
            }
        }
    }

    void aRowIsFilledWhenItIsFirstOpenedAndAsksOnce()
    {
        TestHost host(threeTabs());
        host.show();
        QList<bool> isKnownWhenAsked;
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&] { isKnownWhenAsked.append(host.facade().IsSupportByToolBar("command1")); });
        for (const char *name : {"1", "0", "1"})
            host.click(name);
        QCOMPARE(isKnownWhenAsked, QList<bool>{true});
        QCOMPARE(host.find<MRMainToolBar>("1")->actions().size(), 1);
        QVERIFY(host.find<MRMainToolBar>("1")->isVisible());
        QVERIFY(!host.facade().IsSupportByToolBar("command2"));
    }

    void theRowsFoldAndUnfold()
    {
        TestHost host(threeTabs());
        host.show();
        bool isShown = true;
        // Hidden and shown again, the additional controls bring back the button in force.
        const auto verifyButtons = [&host, &isShown] {
            for (int time = 0; time < 2; ++time) {
                QCOMPARE(host.find<QPushButton>("t_fold")->isVisible(), isShown);
                QCOMPARE(host.find<QPushButton>("t_extend")->isVisible(), !isShown);
                host.setVisible("toolbar_addtional", false);
                host.setVisible("toolbar_addtional", true);
            }
        };
        // By the tab on show, another tab, and the buttons.
        for (const char *clicked : {"0", "0", "0", "1", "1", "t_extend", "t_fold"}) {
            isShown = !isShown;
            host.click(clicked);
            QCOMPARE(stack(host)->isVisible(), isShown);
            verifyButtons();
        }
        QVERIFY(!host.toolBar()->InitMainToolBar(QString()));
        host.setVisible("toolbar_maintoolbar", true);
        QVERIFY(!stack(host)->isVisible());
        host.toolBar()->InitMainToolBar("1"); // Of the tab on show.
        QVERIFY(stack(host)->isVisible());
        host.setVisible("toolbar_maintoolbar", false);
        isShown = false;
        verifyButtons();
    }

    void aTabWithoutControlsOpensAnEmptyPage()
    {
        TestHost host(tabBar(tab("a", button("command"), "checked='true'") + tab("b", {})));
        host.show();
        QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        host.click("b");
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(stack(host)->currentWidget()->findChildren<QWidget *>().isEmpty());
        QVERIFY(asked.isEmpty());
    }

    void twoTabsOfOneNameFillTheLaterRow()
    {
        TestHost host(tabBar(tab("first", button("x"), "checked='true'") + tab("same", button("y"))
                             + tab("same", button("z"))));
        host.show();
        QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        host.click("same"); // The first button of that name.
        QCOMPARE(asked.size(), 1);
        QCOMPARE(stack(host)->currentIndex(), 1);
        const auto actionsOfPage = [&host](int index) {
            return stack(host)->widget(index)->findChild<MRMainToolBar *>()->actions().size();
        };
        QCOMPARE(actionsOfPage(1), 0);
        QCOMPARE(actionsOfPage(2), 2);
    }

    void anExtraGroupStandsAtTheRightOfItsOwnTabOnly()
    {
        const QString extra = "<extra usable='false'><label name='caption' text='Find'/>"
                              "<lineedit name='plain' tooltip='Type'/>"
                              "</extra>";
        TestHost host(tabBar(tab("a", button("x") + extra, "checked='true' scalable='true'")
                             + tab("b", button("y"), "scalable='true'") + tab("c", extra)));
        host.show();
        auto *caption = host.find<QLabel>("caption");
        auto *field = host.find<QLineEdit>("plain");
        QVERIFY(caption->isVisible() && !caption->isEnabled() && !field->isEnabled());
        QCOMPARE(field->placeholderText(), QStringLiteral("Type"));
        const QWidget *panel = caption->parentWidget();
        QCOMPARE(panel->objectName(), QStringLiteral("a"));
        QCOMPARE(panel->contentsMargins(), QMargins(0, 0, 22, 0));
        QVERIFY(panel->x() > host.find<MRMainToolBar>("a")->mapTo(stack(host), QPoint(9, 0)).x());
        QCOMPARE(host.window().findChildren<QLabel *>("caption").size(), 1); // "c" has no panel.

        host.click("b");
        QVERIFY(!panel->isVisible());
        host.click("a");
        QVERIFY(panel->isVisible());
        host.setUsable("toolbar_maintoolbar", false);
        QVERIFY(!panel->isEnabled());
        host.setVisible("toolbar_maintoolbar", false);
        QVERIFY(!panel->isVisible());
    }

    void anExtraSearchFieldTakesOneButtonOrTwo()
    {
        const QString next = button("gis_next");
        const QString extra =
            "<extra usable='true'><lineedit name='gis_input'>%1</lineedit></extra>";
        const QString three = next + button("gis_prev") + button("gis_more");
        QVERIFY(
            !TestHost(oneTab(extra.arg(three), "scalable='true'")).find<QLineEdit>("gis_input"));

        TestHost host(oneTab(extra.arg(next), "scalable='true'"));
        host.showEnabled();
        QSignalSpy found(&host.facade(), &MRToolBar::DoSearchContent);
        QTest::keyClicks(host.find<QLineEdit>("gis_input"), "Oslo");
        host.click("gis_next");
        QCOMPARE(found.size(), 1);
        const auto option = found.first().first().value<SearchOption>();
        QCOMPARE(option.content, QStringLiteral("Oslo"));
        QCOMPARE(option.direction, 1);
    }

    void buttonGroupsStandTwoToAColumn()
    {
        TestHost host(oneTab("<buttongroup name='group'>" + button("g0") + button("g1")
                             + "<item name='g2'/>" + button("g3")
                             + "<menu name='g4' text='g4'><menuitem action='e' text='e'/></menu>"
                             + "</buttongroup><buttongroup/><extra/>"));
        const auto *grid = qobject_cast<QGridLayout *>(host.find<QWidget>("groupwidget")->layout());
        const QMap<QString, QPoint> places{
            {"g0", {0, 0}}, {"g1", {0, 1}}, {"g3", {1, 0}}, {"g4", {2, 0}}};
        for (auto place = places.begin(); place != places.end(); ++place) {
            QLayoutItem *item = grid->itemAtPosition(place->y(), place->x());
            QVERIFY(item);
            QCOMPARE(item->widget()->objectName(), place.key());
        }
        QCOMPARE(grid->count(), places.size()); // A child that becomes nothing leaves no hole.
        // Elements without attributes have no type, and nothing is made of them.
        QCOMPARE(host.find<MRMainToolBar>("only")->actions().size(), 1);
    }

    void groupButtonsServeTheirCommands()
    {
        TestHost host(oneTab("<buttongroup name='group'>" + button("shown")
                             + button("hidden", "visible='false'") + "<button name='bare'/>"
                             + button("away", "available='false'") + "</buttongroup>"));
        host.showEnabled();
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        for (const char *name : {"shown", "away"})
            host.click(name);
        QCOMPARE(TestHost::texts(active), QStringList("shown"));
        QVERIFY(!host.find<QToolButton>("hidden")->isVisible());
        const auto module = [&host](const char *name) {
            return host.find<QToolButton>(name)->property("module").toString();
        };
        QCOMPARE(module("bare"), QStringLiteral("groupbutton_withouttext"));
        QCOMPARE(module("shown"), QStringLiteral("groupbutton"));
    }

    void groupMenuButtonsShowTheirEntries_data()
    {
        QTest::addColumn<QStringList>("texts"); // At first and after a choice.
        QTest::newRow("index='2'") << QStringList{"Pick  ", "Pick  "};
        QTest::newRow("checkable='true'") << QStringList{"Pick", "Pick"};
        QTest::newRow("checkable='true' index='2'") << QStringList{"second", "second"};
        QTest::newRow("checkable='true' index='2' switchable='true'")
            << QStringList{"second", "one"};
    }

    void groupMenuButtonsShowTheirEntries()
    {
        const QString attributes = QTest::currentDataTag();
        TestHost host(oneTab("<buttongroup name='group'><menu name='pick' text='Pick' " + attributes
                             + "><menuitem action='one' text='one'/><menuitem action='two' "
                               "text='second'/></menu></buttongroup>"));
        host.show();
        const auto *pick = host.find<MRGroupButton>("pick");
        QStringList texts(pick->text());
        const bool isSplit = attributes.startsWith("checkable");
        QCOMPARE(pick->popupMode() == QToolButton::MenuButtonPopup, isSplit);
        if (isSplit) // As wide as the longest of its texts.
            QCOMPARE(pick->width(), host.scaled(6 * 24.0 + 12.0));
        host.action("one")->trigger();
        texts.append(pick->text());
        QTEST(texts, "texts");
    }

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
        for (const bool hides : {false, true}) {
            TestHost host(threeTabs(name));
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
        TestHost host(threeTabs() + section("appbutton", "<menu name='0' text='App'/>"));
        host.find<MRMenuButton>("0")->setEnabled(false);
        for (const bool isFurther : {false, true}) { // Moving on ends the search for the name.
            host.setUsable("0", true);
            QCOMPARE(stack(host)->currentIndex(), 1);
            QCOMPARE(host.find<MRMenuButton>("0")->isEnabled(), isFurther);
        }
    }

    void aHostThatSendsAllStatesAgainStillMovesOn()
    {
        TestHost host(threeTabs());
        host.show();
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&host] { host.setUsable("0", false); });
        host.setUsable("0", false);
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(host.find<MRMainToolBar>("1")->isVisible());
    }
};

QTEST_MAIN(TestTabs)
#include "tst_tabs.moc"
