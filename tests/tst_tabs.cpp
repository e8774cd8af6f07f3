#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
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

/** Three tabs with a button each, the first of them on show. */
QString threeTabs()
{
    return tabBar(tab("a", button("a_command"), "checked='true'") + tab("b", button("b_command"))
                  + tab("c", button("c_command")));
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
        for (int checked = 0; checked < 3; ++checked) {
            QString tabs;
            for (int i = 0; i < 3; ++i) {
                const QString name = QString::number(i);
                tabs += tab(name, button("command" + name), i == checked ? "checked='true'" : "");
            }
            TestHost host(tabBar(tabs));
            host.show();
            for (int i = 0; i < 3; ++i) {
                const auto *row = host.find<MRMainToolBar>(QString::number(i));
                QCOMPARE(row->isVisible(), i == checked);
                QCOMPARE(row->isFilled(), i == checked);
                QCOMPARE(row->actions().size(), i == checked ? 1 : 0);
            }
        }
    }

    void aRowIsFilledWhenItIsFirstOpenedAndAsksOnce()
    {
        TestHost host(threeTabs());
        host.show();
        QList<bool> isKnownWhenAsked;
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&] { isKnownWhenAsked.append(host.facade().IsSupportByToolBar("b_command")); });
        for (const char *name : {"b", "a", "b"})
            host.click(name);
        QCOMPARE(isKnownWhenAsked, QList<bool>{true});
        QCOMPARE(host.find<MRMainToolBar>("b")->actions().size(), 1);
        QVERIFY(host.find<MRMainToolBar>("b")->isVisible());
        QVERIFY(!host.facade().IsSupportByToolBar("c_command"));
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
        for (const char *clicked : {"a", "a", "a", "b", "b", "t_extend", "t_fold"}) {
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

    void anExtraSearchFieldTakesOneButtonOrTwo_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("direction"); // Of the first button.
        QTest::newRow("three") << QStringList{"gis_prev", "gis_next", "gis_more"} << -1;
        QTest::newRow("one") << QStringList{"gis_next"} << 1;
        QTest::newRow("two") << QStringList{"gis_prev", "gis_next"} << 0;
    }

    void anExtraSearchFieldTakesOneButtonOrTwo()
    {
        QFETCH(QStringList, buttons);
        QFETCH(int, direction);
        QString children;
        for (const QString &name : std::as_const(buttons))
            children += button(name);
        TestHost host(oneTab("<extra scalable='true'><lineedit name='gis_input'>" + children
                                 + "</lineedit></extra>",
                             "scalable='true'"));
        host.showEnabled();
        auto *field = host.find<MRSearchBar>("gis_input");
        QCOMPARE(field != nullptr, direction >= 0);
        if (!field)
            return;
        QSignalSpy found(&host.facade(), &MRToolBar::DoSearchContent);
        QTest::keyClicks(field, "Oslo");
        host.click(buttons.first());
        QCOMPARE(found.size(), 1);
        const auto option = found.first().first().value<SearchOption>();
        QCOMPARE(option.content, QStringLiteral("Oslo"));
        QCOMPARE(option.direction, direction);
        QVERIFY(option.newSearch);
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
};

QTEST_MAIN(TestTabs)
#include "tst_tabs.moc"
