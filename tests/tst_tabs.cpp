// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Rows.h"
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

/** Tabs "0", "1" and so on with a button each: s is on show, c checkable, u not, U on show. */
QString tabsOf(const QString &kinds)
{
    QString tabs;
    for (int i = 0; i < kinds.size(); ++i) {
        const QChar kind = kinds.at(i);
        const QString attributes = QString(kind.toLower() == 'u' ? "" : "checkable='true' ")
                                   + (kind == 's' || kind == 'U' ? "checked='true'" : "");
        tabs += QStringLiteral("<tabbutton name='%1' text='%1' %2>%3</tabbutton>")
                    .arg(QString::number(i), attributes, button("command" + QString::number(i)));
    }
    return tabBar(tabs);
}

/** Three checkable tabs, of which one is on show. */
QString threeTabs(int current = 0)
{
    return tabsOf(QString("ccc").replace(current, 1, 's'));
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

using React = void (*)(TestHost &, const QString &);

/** The steps of a user, and the answer that the host gives once, to DoRequestAuthority(). */
void exchange(TestHost &host, React react, const QString &steps, const QString &answer)
{
    host.showEnabled();
    bool isAnswered = false;
    const auto connection =
        QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(), [&] {
            if (!std::exchange(isAnswered, true))
                react(host, answer);
        });
    act(host, steps);
    QObject::disconnect(connection);
}

/** The tab on show after the host's answer. */
const struct
{
    const char *name, *tabs, *steps, *answer;
    int tab;
    bool isFolded = false;
} answers[]{
    {"hides the tab on show", "scc", "click 2", "hide 0", 2},
    {"disables the tab on show", "scc", "click 2", "disable 0", 2},
    {"hides all others", "scc", "click 2", "hide 0,hide 1", 2},
    {"sends all states twice", "scc", "click 2", "enable 0,enable 1,enable 0,enable 2", 2},
    {"opens another tab", "scc", "click 1", "click 2", 2},
    {"opens another tab by its position", "scc", "click 1", "open 2", 2},
    {"opens another tab, then the tab", "scc", "click 1", "click 2,click 1", 1},
    {"returns to the tab on show", "scc", "click 1", "click 0", 0},
    {"leaves the tab on show, then returns", "scc", "click 1", "enable 0,click 0", 0},
    {"opens the tab and folds it", "scc", "click 1", "click 1,click 1", 1, true},
    {"opens the tab, then hides it", "scc", "click 1", "click 1,hide 1", 2},
    {"is asked while the rows are folded", "scc", "click 0,click 1", "click 1", 1},
    {"has left a tab and disables it", "scc", "hide 0", "disable 0", 1},
    {"has left a tab and opens another", "scc", "hide 0", "click 2", 2},
    {"has left a tab and leaves another", "scc", "enable 0", "click 2,hide 2", 0},
    {"has no tab on show at first, opens one", "cc", "click 0", "click 0", 0},
    {"has no tab on show at first, hides it", "cc", "click 0", "hide 0", 1},
    {"opens a tab that takes no check twice", "suc", "click 1", "click 1", 1},
    {"hides the tab on show for it", "suc", "click 1", "hide 0", 1},
    {"returns from it", "suc", "click 1", "click 0", 0},
    {"leaves it", "suc", "click 1,hide 1", "", 2},
    {"begins with it", "sU", "", "", 1},
};

} // namespace

/** Tabs and their rows, also when the host changes them in its answer to DoRequestAuthority(). */
class TabsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheCheckedTabWhateverItsPosition()
    {
        for (int current = 0; current < 3; ++current) {
            TestHost host = TestHost::shown(threeTabs(current));
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
        TestHost host = TestHost::shown(threeTabs());
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
        TestHost host = TestHost::shown(threeTabs());
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
        TestHost host =
            TestHost::shown(tabBar(tab("a", button("command"), "checked='true'") + tab("b", {})));
        QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        host.click("b");
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(stack(host)->currentWidget()->findChildren<QWidget *>().isEmpty());
        QVERIFY(asked.isEmpty());
    }

    void shouldFillTheLaterRowOfTwoTabsOfOneName()
    {
        TestHost host =
            TestHost::shown(tabBar(tab("first", button("x"), "checked='true'")
                                   + tab("same", button("y")) + tab("same", button("z"))));
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
        TestHost host = TestHost::shown(
            tabBar(tab("a", button("x") + disabled, "checked='true' scalable='true'")
                   + tab("b", button("y"), "scalable='true'") + tab("c", disabled)));
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
        TestHost host = TestHost::enabled(tabWith(next));
        QSignalSpy found(&host.facade(), &MRToolBar::DoSearchContent);
        QTest::keyClicks(host.find<QLineEdit>("gis_input"), "Oslo");
        host.click("gis_next");
        QCOMPARE(found.size(), 1);
        const auto option = found.first().first().value<SearchOption>();
        QCOMPARE(option.content, QStringLiteral("Oslo"));
        QCOMPARE(option.direction, 1);
    }

    void shouldLeaveTheShownTabWhenItIsHiddenOrDisabled()
    {
        // The tab on show of three, the disabled ones, and the next one on show.
        const QList<std::tuple<int, QStringList, int>> rows{
            {0, {}, 1}, {2, {}, 0}, {0, {"1"}, 0}, {1, {"0", "2"}, 1}};
        for (const auto &[current, disabled, next] : rows) {
            for (const bool hides : {false, true})
                leave(current, disabled, hides, next);
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

    void shouldShowTheRowOfTheCheckedTabAfterAnAnswer_data() { addRows(answers); }

    void shouldShowTheRowOfTheCheckedTabAfterAnAnswer()
    {
        const auto &row = rowOf(answers);
        for (const React react : {act, actInLoop}) {
            TestHost host(tabsOf(row.tabs));
            exchange(host, react, row.steps, row.answer);
            QCOMPARE(stack(host)->currentIndex(), row.tab);
            QCOMPARE(!stack(host)->isVisible(), row.isFolded);
            for (int i = 0; row.tabs[i]; ++i) {
                const QString name = QString::number(i);
                QCOMPARE(host.find<MRMainToolBar>(name)->isVisible(),
                         i == row.tab && !row.isFolded);
                QCOMPARE(host.find<QPushButton>(name)->isChecked(),
                         i == row.tab && row.tabs[i] != 'u' && row.tabs[i] != 'U');
            }
        }
    }

    void shouldAllowDeletionOfTheWindowInTheAnswer()
    {
        for (const char *answer : {"delete", "click 2,delete", "hide 0,delete"}) {
            for (const char *steps : {"click 1", "hide 0"}) {
                for (const React react : {act, actInLoop}) {
                    TestHost host = TestHost::shown(threeTabs());
                    const QPointer<NewToolBar> toolBar = host.toolBar();
                    exchange(host, react, steps, answer);
                    QVERIFY(toolBar.isNull());
                }
            }
        }
    }

private:
    static void leave(int current, const QStringList &disabled, bool hides, int next)
    {
        TestHost host = TestHost::enabled(threeTabs(current));
        for (const QString &other : disabled)
            host.find<QPushButton>(other)->setEnabled(false);
        const QString name = QString::number(current);
        hides ? host.setVisible(name, false) : host.setUsable(name, false);
        QCOMPARE(stack(host)->currentIndex(), next);
        auto *tabButton = host.find<QPushButton>(name);
        QVERIFY(!host.find<MRMainToolBar>(name)->isVisible());
        QVERIFY(hides ? !tabButton->isVisible() : !tabButton->isEnabled());
        QVERIFY(!host.find<QPushButton>("t_fold")->isVisible());
        QVERIFY(host.find<QPushButton>("t_extend")->isVisible());
        if (hides || next == current)
            return;
        tabButton->setEnabled(true);
        host.click(name);
        QVERIFY2(host.find<MRMainToolBar>(name)->isVisible(), "The row has not come back");
    }
};

QTEST_MAIN(TabsTest)
#include "tst_tabs.moc"
