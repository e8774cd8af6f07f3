// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTimer>

#include <utility>

using namespace Describe;

namespace {

QString tabBar(const QString &tabs)
{
    return section("tabbar", tabs) + section("addtional", button("t_fold"));
}

const QString checkable = "checkable='true'";
const QString shown = "checkable='true' checked='true'";
const QString uncheckable = "checkable='false'";

/** Tabs "0", "1" and so on with a button each and these attributes. */
QString tabsWith(const QStringList &attributes)
{
    QString tabs;
    for (int i = 0; i < attributes.size(); ++i) {
        const QString name = QString::number(i);
        tabs += QStringLiteral("<tabbutton name='%1' text='%1' %2>%3</tabbutton>")
                    .arg(name, attributes.at(i), button("command" + name));
    }
    return tabBar(tabs);
}

/** Tabs "0" to "2" with a button each, of which one is on show. */
QString threeTabs(int checkedTab = 0)
{
    QStringList attributes{checkable, checkable, checkable};
    attributes[checkedTab] = shown;
    return tabsWith(attributes);
}

QStackedWidget *stack(const TestHost &host)
{
    return host.find<QStackedWidget>(QStringLiteral("tabwidget"));
}

/** Performs the steps, separated by commas, of a user or host, such as "click 1" or "hide 0". */
void act(TestHost &host, const QString &steps)
{
    const QStringList all = steps.split(',', Qt::SkipEmptyParts);
    for (const QString &step : all) {
        const QString tab = step.section(' ', 1);
        if (step.startsWith("click"))
            host.click(tab);
        else if (step.startsWith("open"))
            host.toolBar()->InitMainToolBar(tab);
        else if (step.startsWith("hide"))
            host.setVisible(tab, false);
        else if (step.startsWith("delete"))
            host.deleteWindow();
        else
            host.setUsable(tab, step.startsWith("enable"));
    }
}

void actInLoop(TestHost &host, const QString &steps)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        act(host, steps);
        loop.quit();
    });
    loop.exec();
}

void addAnswer(const char *name, const QStringList &tabs, const char *steps, const char *answer,
               int tab, bool isFolded = false)
{
    QTest::newRow(name) << tabs << steps << answer << tab << isFolded;
}

void addAnswersOfCheckableTabs()
{
    const QStringList plain{shown, checkable, checkable};
    addAnswer("hides the tab on show", plain, "click 1", "hide 0", 1);
    addAnswer("hides the tab on show, not the next clicked", plain, "click 2", "hide 0", 2);
    addAnswer("disables the tab on show", plain, "click 2", "disable 0", 2);
    addAnswer("hides all others", plain, "click 2", "hide 0,hide 1", 2);
    addAnswer("sends all states", plain, "click 1", "enable 0,enable 1,enable 2", 1);
    addAnswer("sends all states twice", plain, "click 2", "enable 0,enable 1,enable 0,enable 2", 2);
    addAnswer("opens another tab", plain, "click 1", "click 2", 2);
    addAnswer("opens another tab by its position", plain, "click 1", "open 2", 2);
    addAnswer("opens the tab, too", plain, "click 1", "click 1", 1);
    addAnswer("opens another tab, then the tab", plain, "click 1", "click 2,click 1", 1);
    addAnswer("returns to the tab on show", plain, "click 1", "click 0", 0);
    addAnswer("leaves the tab on show, then returns", plain, "click 1", "enable 0,click 0", 0);
    addAnswer("opens the tab and folds it", plain, "click 1", "click 1,click 1", 1, true);
    addAnswer("opens the tab, then hides it", plain, "click 1", "click 1,hide 1", 2);
    addAnswer("is asked while the rows are folded", plain, "click 0,click 1", "click 1", 1);
    addAnswer("has left a tab and disables it", plain, "hide 0", "disable 0", 1);
    addAnswer("has left a tab and opens another", plain, "hide 0", "click 2", 2);
    addAnswer("has left a tab and leaves another", plain, "enable 0", "click 2,hide 2", 0);
    addAnswer("has opened the tab before", plain, "click 1,click 0,click 1", "", 1);
    addAnswer("has no tab on show at first", {checkable, checkable}, "click 0", "", 0);
    addAnswer("has no tab on show at first, opens one", {checkable, checkable}, "click 0",
              "click 0", 0);
    addAnswer("has no tab on show at first, hides it", {checkable, checkable}, "click 0", "hide 0",
              1);
}

void addAnswersOfAnUncheckableTab()
{
    const QStringList mixed{shown, uncheckable, checkable};
    addAnswer("has a tab that takes no check", mixed, "click 1", "", 1);
    addAnswer("opens a tab that takes no check twice", mixed, "click 1", "click 1", 1);
    addAnswer("hides the tab on show for it", mixed, "click 1", "hide 0", 1);
    addAnswer("returns from it", mixed, "click 1", "click 0", 0);
    addAnswer("opens another one instead of it", mixed, "click 1", "click 2", 2);
    addAnswer("leaves it", mixed, "click 1,hide 1", "", 2);
    addAnswer("begins with it", {shown, uncheckable + " checked='true'"}, "", "", 1);
}

} // namespace

/** Tabs and their rows, also when the host changes them in its answer to DoRequestAuthority(). */
class TabsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheCheckedTabWhateverItsPosition()
    {
        for (int current = 0; current < 3; ++current) {
            TestHost host(threeTabs(current));
            host.show();
            for (int i = 0; i < 3; ++i) {
                const auto *row = host.find<MRMainToolBar>(QString::number(i));
                QCOMPARE(row->isVisible(), i == current);
                QCOMPARE(row->isFilled(), i == current);
                QCOMPARE(row->actions().size(), i == current ? 1 : 0);
            }
        }
    }

    void shouldFillARowAndAskForStatesOnItsFirstOpening()
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

    void shouldFoldAndUnfoldTheRows()
    {
        TestHost host(threeTabs());
        host.show();
        bool isShown = true;
        // Hiding and showing the additional controls must not change which button is visible.
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
        host.toolBar()->InitMainToolBar("1"); // The tab on show.
        QVERIFY(stack(host)->isVisible());
        host.setVisible("toolbar_maintoolbar", false);
        isShown = false;
        verifyButtons();
    }

    void shouldOpenAnEmptyPageForATabWithoutControls()
    {
        TestHost host(tabBar(tab("a", button("command"), "checked='true'") + tab("b", {})));
        host.show();
        QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        host.click("b");
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(stack(host)->currentWidget()->findChildren<QWidget *>().isEmpty());
        QVERIFY(asked.isEmpty());
    }

    void shouldFillTheLaterRowOfTwoTabsOfOneName()
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

    void shouldShowAnExtraGroupAtTheRightOfItsTabOnly()
    {
        const QString disabled = "<extra usable='false'>" + label("caption", "Find")
                                 + field("plain", "tooltip='Type'") + "</extra>";
        TestHost host(tabBar(tab("a", button("x") + disabled, "checked='true' scalable='true'")
                             + tab("b", button("y"), "scalable='true'") + tab("c", disabled)));
        host.show();
        const auto *caption = host.find<QLabel>("caption");
        const auto *plain = host.find<QLineEdit>("plain");
        QVERIFY(caption->isVisible() && !caption->isEnabled() && !plain->isEnabled());
        QCOMPARE(plain->placeholderText(), QStringLiteral("Type"));
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

    void shouldMakeAnExtraSearchFieldWithOneButtonOrTwo()
    {
        const QString next = button("gis_next");
        const auto tabWith = [](const QString &buttons) {
            return section("tabbar", tab("only", extra(searchField("gis_input", buttons)),
                                         "checked='true' scalable='true'"));
        };
        const QString three = next + button("gis_prev") + button("gis_more");
        QVERIFY(!TestHost(tabWith(three)).find<QLineEdit>("gis_input"));

        TestHost host(tabWith(next));
        host.showEnabled();
        QSignalSpy found(&host.facade(), &MRToolBar::DoSearchContent);
        QTest::keyClicks(host.find<QLineEdit>("gis_input"), "Oslo");
        host.click("gis_next");
        QCOMPARE(found.size(), 1);
        const auto option = found.first().first().value<SearchOption>();
        QCOMPARE(option.content, QStringLiteral("Oslo"));
        QCOMPARE(option.direction, 1);
    }

    void shouldLeaveTheShownTabWhenItIsHiddenOrDisabled_data()
    {
        QTest::addColumn<int>("current"); // The index of the tab on show, of three.
        QTest::addColumn<QStringList>("disabled");
        QTest::addColumn<int>("next");
        QTest::newRow("the next one") << 0 << QStringList() << 1;
        QTest::newRow("wraps around") << 2 << QStringList() << 0;
        QTest::newRow("the next one is disabled") << 0 << QStringList("1") << 0;
        QTest::newRow("no other one is usable") << 1 << QStringList{"0", "2"} << 1;
    }

    void shouldLeaveTheShownTabWhenItIsHiddenOrDisabled()
    {
        QFETCH(int, current);
        QFETCH(QStringList, disabled);
        const QString name = QString::number(current);
        for (const bool hides : {false, true}) {
            TestHost host(threeTabs(current));
            host.showEnabled();
            for (const QString &other : std::as_const(disabled))
                host.find<QPushButton>(other)->setEnabled(false);
            hides ? host.setVisible(name, false) : host.setUsable(name, false);
            QTEST(stack(host)->currentIndex(), "next");
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

    void shouldLeaveTheShownTabWhenItIsEnabled()
    {
        TestHost host(threeTabs() + section("appbutton", menu("0", {})));
        host.find<MRMenuButton>("0")->setEnabled(false);
        for (const bool isFurther : {false, true}) { // Leaving the tab ends the lookup of the name.
            host.setUsable("0", true);
            QCOMPARE(stack(host)->currentIndex(), 1);
            QCOMPARE(host.find<MRMenuButton>("0")->isEnabled(), isFurther);
        }
    }

    void shouldLeaveTheShownTabOnceWhenAllStatesAreSentAgain()
    {
        TestHost host(threeTabs());
        host.show();
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&host] { host.setUsable("0", false); });
        host.setUsable("0", false);
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(host.find<MRMainToolBar>("1")->isVisible());
    }

    void shouldShowTheRowOfTheCheckedTabAfterAnAnswer_data()
    {
        QTest::addColumn<QStringList>("tabs");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("tab");
        QTest::addColumn<bool>("isFolded");
        addAnswersOfCheckableTabs();
        addAnswersOfAnUncheckableTab();
    }

    void shouldShowTheRowOfTheCheckedTabAfterAnAnswer()
    {
        QFETCH(QStringList, tabs);
        QFETCH(QString, steps);
        QFETCH(QString, answer);
        QFETCH(int, tab);
        QFETCH(bool, isFolded);
        for (const auto &react : {act, actInLoop}) {
            TestHost host(tabsWith(tabs));
            host.showEnabled();
            bool isAnswered = false;
            connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, [&] {
                if (!std::exchange(isAnswered, true))
                    react(host, answer);
            });
            act(host, steps);
            const auto *stack = host.find<QStackedWidget>("tabwidget");
            QCOMPARE(stack->currentIndex(), tab);
            QCOMPARE(!stack->isVisible(), isFolded);
            for (int i = 0; i < tabs.size(); ++i) {
                const QString name = QString::number(i);
                QCOMPARE(host.find<MRMainToolBar>(name)->isVisible(), i == tab && !isFolded);
                QCOMPARE(host.find<QPushButton>(name)->isChecked(),
                         i == tab && tabs.at(i).startsWith(checkable));
            }
        }
    }

    void shouldAllowDeletionOfTheWindowInTheAnswer()
    {
        for (const char *answer : {"delete", "click 2,delete", "hide 0,delete"}) {
            for (const char *steps : {"click 1", "hide 0"}) {
                for (const auto &react : {act, actInLoop}) {
                    TestHost host(tabsWith({shown, checkable, checkable}));
                    host.showEnabled();
                    const QPointer<NewToolBar> toolBar = host.toolBar();
                    bool isAnswered = false;
                    connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, [&] {
                        if (!std::exchange(isAnswered, true))
                            react(host, answer);
                    });
                    act(host, steps);
                    QVERIFY(toolBar.isNull());
                }
            }
        }
    }
};

QTEST_MAIN(TabsTest)
#include "tst_tabs.moc"
