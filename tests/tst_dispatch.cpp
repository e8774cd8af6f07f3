// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/commands/CommandDispatcher.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include <algorithm>

using namespace Describe;

namespace {

const QString switchable = "checkable='true' switchable='true'";

QString tool(const QString &name, const QString &more = {})
{
    return item(name, "checkable='true' " + more);
}

void trigger(const TestHost &host, const QString &name)
{
    host.action(name)->trigger();
}

QWidget *rowButton(const TestHost &host, const QString &name)
{
    return host.find<MRMainToolBar>(QStringLiteral("row"))->widgetForAction(host.action(name));
}

/** A click with that time stamp in milliseconds, as the window system reports it. */
void clickAt(TestHost &host, const QString &name, int time)
{
    const QWidget *button = rowButton(host, name);
    QTest::lastMouseTimestamp = time;
    QTest::mouseClick(host.window().windowHandle(), Qt::LeftButton, {},
                      button->mapTo(&host.window(), button->rect().center()));
}

/** The delivered clicks, the milliseconds from each to the next, and what is reported. */
const struct
{
    const char *name, *clicks;
    int gap;
    const char *single, *twice;
} timedClicks[]{
    {"quick", "aa", 100, "", "a"},           {"just in time", "aa", 250, "", "a"},
    {"just too late", "aa", 251, "aa", ""},  {"three, too late", "aaa", 600, "aaa", ""},
    {"on two controls", "ab", 100, "b", ""}, {"on two controls, late", "ab", 600, "ab", ""},
};

const QString doubleClick = "doubleclick='true'";

/** What the host hears of commands, with "twice" for a double click. */
class Ear : public QObject
{
public:
    explicit Ear(const MRToolBar &facade)
    {
        connect(&facade, &MRToolBar::DoActive, this, [this](auto name) { heard.append(name); });
        connect(&facade, &MRToolBar::DoDoubleActive, this,
                [this](auto name) { heard.append(name + " twice"); });
        connect(&facade, &MRToolBar::DoSetBackground, this,
                [this](auto style) { heard.append(QString::number(style)); });
    }
    QStringList heard;
};

} // namespace

/** The signals for commands, and checking by name, which emits no signal. */
class DispatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReportACommand()
    {
        // The signals of two triggers: commands by name, backgrounds by number.
        const QList<std::pair<QString, QString>> rows{
            {"f_print", "f_print f_print"},  {"menu_f_open", "f_open f_open"},
            {"menu_none", "none none"},      {"menuf_open", "menuf_open menuf_open"},
            {"background_default", "0 0"},   {"background_daytime", "1 1"},
            {"background_nighttime", "2 2"}, {"background_eyeguard", "3 3"},
            {"background_parchment", "4 4"}, {"menu_background_daytime", "0 0"}};
        for (const auto &[name, reported] : rows) {
            // Backgrounds ignore the attribute doubleclick.
            const bool isBackground = name.contains("background");
            TestHost host(
                row(button("f_open") + button(name, isBackground ? doubleClick : QString())));
            const Ear ear(host.facade());
            trigger(host, name);
            trigger(host, name);
            QCOMPARE(name + ": " + ear.heard.join(' '), name + ": " + reported);
        }
    }

    void shouldUncheckTheFlowModeOnAPageLayout()
    {
        for (const QString name :
             {"vpmode_singlepage", "menu_vpmode_doublepage", "vpmode_singleflow"}) {
            TestHost host(
                row(button("vmode_flow", "checkable='true' checked='true'") + button(name)));
            trigger(host, name);
            QCOMPARE(host.facade().GetControlCheckedState("vmode_flow"), !name.endsWith("page"));
        }
    }

    void shouldTellSingleFromDoubleClicks()
    {
        const QList<std::pair<QString, QString>> rows{
            {"a", "a"}, {"aaa", "a twice a"}, {"abb", "b twice"}, {"aba", "a"}};
        for (const auto &[clicks, reported] : rows) {
            TestHost host(row(button("a", doubleClick) + button("b", doubleClick)));
            const Ear ear(host.facade());
            QElapsedTimer clock;
            clock.start();
            for (const QChar name : clicks)
                trigger(host, name);
            // Only a double click is reported at once.
            QCOMPARE(ear.heard.join(' '), reported.contains("twice") ? reported.left(7) : "");
            QTRY_COMPARE_WITH_TIMEOUT(ear.heard.join(' '), reported, 2000);
            QVERIFY2(clock.elapsed() >= 230 || reported == "b twice", "Reported too early");
            QTest::qWait(300);
            QCOMPARE(clicks + ": " + ear.heard.join(' '), clicks + ": " + reported);
        }
    }

    void shouldTellDoubleClicksByTheirTimeStamps_data() { addRows(timedClicks); }

    void shouldTellDoubleClicksByTheirTimeStamps()
    {
        const auto &row = rowOf(timedClicks);
        TestHost host =
            TestHost::enabled(Describe::row(button("a", doubleClick) + button("b", doubleClick)));
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        const QSignalSpy doubleActive(&host.facade(), &MRToolBar::DoDoubleActive);
        // All clicks are delivered at once, as after a time in which the host was busy.
        int time = 1000;
        for (const QChar name : QString(row.clicks))
            clickAt(host, name, time += row.gap);
        QTest::qWait(300);
        QCOMPARE(TestHost::texts(active).join(""), QString(row.single));
        QCOMPARE(TestHost::texts(doubleActive).join(""), QString(row.twice));
    }

    void shouldUseTheClockForTriggersWithoutTimeStamp()
    {
        // By triggers or by events without time stamp, and milliseconds without event processing.
        for (const auto &[isClicked, busy] :
             {std::pair{false, 0}, {true, 0}, {false, 300}, {true, 300}}) {
            TestHost host = TestHost::enabled(row(button("a", doubleClick)));
            // The time of an earlier click of the user must not count.
            clickAt(host, "a", 1000);
            QTest::qWait(300);
            const Ear ear(host.facade());
            for (int time = 0; time < 2; ++time) {
                if (isClicked)
                    QTest::mouseClick(rowButton(host, "a"), Qt::LeftButton);
                else
                    trigger(host, "a");
                if (time == 0)
                    QThread::msleep(static_cast<unsigned long>(busy));
            }
            QTest::qWait(300);
            QCOMPARE(ear.heard.join(' '), QString(busy == 0 ? "a twice" : "a a"));
        }
    }

    void shouldAllowDeletionOfTheWindowOnALateClick()
    {
        TestHost host = TestHost::enabled(row(button("a", doubleClick)));
        connect(&host.facade(), &MRToolBar::DoActive, this, [&host] { host.deleteWindow(); });
        trigger(host, "a");
        QThread::msleep(300);
        const QPointer<NewToolBar> toolBar = host.toolBar();
        trigger(host, "a");
        QVERIFY(toolBar.isNull());
    }

    void shouldWatchClicksForDoubleClickControlsOnly()
    {
        for (const bool reacts : {false, true}) {
            const NamedList<QAction> actions;
            const NamedList<MRDropButton> dropButtons;
            QTimer wait;
            QString waitingCommand;
            CommandDispatcher dispatcher(actions, dropButtons, wait, waitingCommand);
            QAction command;
            if (reacts)
                ActionData::addDoubleClick(&command);
            dispatcher.connectCommand(&command);
            QCOMPARE(dispatcher.children().size(), reacts ? 1 : 0);
        }
    }

    void shouldReleaseTheOtherDropButtonsForAnAnnotationTool()
    {
        const auto tools = [](const QString &name, const QString &group) {
            return menu(name, tool(name + "_tool", "group='" + group + '\''), switchable);
        };
        TestHost host(row(tools("lines", "annotgroup") + tools("shapes", "annotgroup")
                          + tools("others", "otherGroup")
                          + button("pen", "group='annotgroup' checkable='true'")));
        const QList<std::pair<QString, QString>> steps{{"lines_tool", "lines"},
                                                       {"others_tool", "lines others"},
                                                       {"shapes_tool", "shapes"},
                                                       {"pen", ""}};
        for (const auto &[pressed, held] : steps) {
            trigger(host, pressed);
            QStringList checked;
            for (const QString name : {"lines", "shapes", "others"}) {
                if (host.find<MRDropButton>(name)->isChecked())
                    checked.append(name);
            }
            QCOMPARE(checked.join(' '), held);
        }
    }

    void shouldNotReportACheckByName()
    {
        const QString grouped = "group='tools' checkable='true'";
        TestHost host(row(button("pen", grouped + " checked='true'") + button("ink", grouped)
                          + button("off", grouped + " usable='false'")
                          + button("hid", grouped + " visible='false'")));
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        QString name = "ink:red:thick";
        host.facade().DoSetControlCheckedStateSlot(name, true);
        QCOMPARE(name, QStringLiteral("ink"));
        QVERIFY(host.action("ink")->isChecked() && !host.action("pen")->isChecked());
        for (const char *refusing : {"off", "hid"}) {
            host.setChecked(refusing, true);
            QVERIFY(host.facade().GetControlCheckedState(refusing));
        }
        QVERIFY(!host.action("off")->isEnabled() && !host.action("ink")->isChecked());
        QVERIFY(active.isEmpty());
        host.action("ink")->trigger();
        QCOMPARE(TestHost::texts(active), QStringList("ink"));
    }

    void shouldTakeUsableStatesAfterACheckByName()
    {
        TestHost host(row(menu("m", tool("one"), "checkable='true'")));
        host.setChecked("m", true);
        for (const bool usable : {false, true}) {
            host.setUsable("m", usable);
            QCOMPARE(host.facade().GetCompositeEnable("m"), usable);
        }
    }

    void shouldNotReportTheFirstUseOfAnUnavailableControl()
    {
        TestHost host(row(button("c", "available='false' checkable='true'") + button("menu_c")));
        host.setUsable("nothing", true);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.action("menu_c")->trigger();
        QVERIFY(active.isEmpty() && host.action("c")->isChecked());
        host.action("menu_c")->trigger();
        QCOMPARE(TestHost::texts(active), QStringList("c"));
        QVERIFY(!host.action("c")->isChecked());
        host.setUsable("c", true); // The first trigger has made it available.
        QVERIFY(host.action("c")->isEnabled());
    }

    void shouldUncheckTheShapeButtonWhenAnotherToolIsSetByName()
    {
        TestHost host(row(menu("tp_shape", tool("tp_arrow"), switchable)
                          + menu("pens", tool("tool"), switchable)));
        const auto *shapes = host.find<MRDropButton>("tp_shape");
        const auto *pens = host.find<MRDropButton>("pens");
        for (const QString name : {"tw_watermark_add", "tp_else", "my tp_tool:x", "tool"}) {
            for (const bool checked : {true, false}) {
                host.setChecked("tp_arrow", true);
                QVERIFY(shapes->isChecked()); // As the entry of its menu.
                host.setChecked(name, checked);
                QVERIFY2(shapes->isChecked() == (name != "tool"), qPrintable(name));
                QCOMPARE(pens->isChecked(), host.action("tool")->isChecked());
            }
        }
    }

    void shouldMoveADropButtonOnFromAHiddenEntry()
    {
        // The entries that are hidden one after the other, and the button's entry afterwards.
        const QList<std::tuple<QString, QString, QString>> rows{
            {"index='2'", "1", "2"}, // Not the current entry.
            {"index='2'", "2", "3"},
            {"index='3'", "3", "1"},
            {"index='1'", "21", "3"},
            {"index='1'", "231", "1"}, // No visible entry is left.
            {"index='2' withaction='true'", "2", "1"},
            {"index='2' withaction='true'", "12", "3"}};
        for (const auto &[attributes, hidden, current] : rows) {
            TestHost host(row(
                menu("m", tool("1") + tool("2") + tool("3"), "checkable='true' " + attributes)));
            for (const QChar name : hidden)
                host.setVisible(name, false);
            const QString story = attributes + " without " + hidden + ": ";
            QCOMPARE(story + host.find<MRDropButton>("m")->GetCurrentAction()->objectName(),
                     story + current);
        }
    }

    void shouldKeepEnabledAndVisibleStatesOnReset()
    {
        TestHost host(row(button("on", "checkable='true' checked='true'") + button("off")
                          + menu("m", tool("one"), switchable) + field("d_gotopage")
                          + label("d_totalpagelabel", "/")));
        host.setUsable("off", false);
        host.setVisible("off", false);
        host.setUsable("d_gotopage", false);
        host.facade().DoSetPageInfoSlot(3, 12);
        host.setChecked("one", true);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.facade().DoResetToolbarSlot();
        QVERIFY(!host.action("on")->isChecked() && !host.action("one")->isChecked());
        QVERIFY(!host.find<MRDropButton>("m")->isChecked() && active.isEmpty());
        QVERIFY(!host.action("off")->isVisible() && host.action("on")->isEnabled());
        QVERIFY(!host.facade().GetCompositeEnable("off"));
        QVERIFY(!host.facade().GetCompositeEnable("d_gotopage"));
        QCOMPARE(host.find<QLineEdit>("d_gotopage")->text(), QString());
        QCOMPARE(host.find<QLabel>("d_totalpagelabel")->text(), QStringLiteral("/ "));
    }
};

QTEST_MAIN(DispatchTest)
#include "tst_dispatch.moc"
