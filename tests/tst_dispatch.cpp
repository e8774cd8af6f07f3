// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
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
#include <array>

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
                row(button("f_open") + button(name, isBackground ? "doubleclick='true'" : "")));
            QStringList heard;
            connect(&host.facade(), &MRToolBar::DoActive, this,
                    [&heard](const QString &command) { heard.append(command); });
            connect(&host.facade(), &MRToolBar::DoSetBackground, this,
                    [&heard](BackgroundStyle style) { heard.append(QString::number(style)); });
            trigger(host, name);
            trigger(host, name);
            QCOMPARE(name + ": " + heard.join(' '), name + ": " + reported);
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
        using Clicks = std::array<QString, 3>;
        for (const auto &[clicks, single, twice] :
             {Clicks{"a", "a", ""}, {"aaa", "a", "a"}, {"abb", "", "b"}, {"aba", "a", ""}}) {
            TestHost host(
                row(button("a", "doubleclick='true'") + button("b", "doubleclick='true'")));
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            const QSignalSpy doubleActive(&host.facade(), &MRToolBar::DoDoubleActive);
            QElapsedTimer clock;
            clock.start();
            for (const QChar name : clicks)
                trigger(host, name);
            QCOMPARE(TestHost::texts(doubleActive).join(""), twice);
            QVERIFY2(active.isEmpty(), qPrintable(clicks));
            if (!single.isEmpty()) {
                QTRY_COMPARE_WITH_TIMEOUT(active.count(), 1, 2000);
                QVERIFY2(clock.elapsed() >= 230, "The single click was reported too early");
            }
            QTest::qWait(300);
            QCOMPARE(clicks + ": " + TestHost::texts(active).join(""), clicks + ": " + single);
            QCOMPARE(doubleActive.count(), twice.isEmpty() ? 0 : 1);
        }
    }

    void shouldTellDoubleClicksByTheirTimeStamps_data()
    {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<int>("gap"); // From each click to the next, in milliseconds.
        QTest::addColumn<QString>("single");
        QTest::addColumn<QString>("twice");
        const auto row = [](const char *clicks, int gap, const char *single, const char *twice) {
            QTest::addRow("%s every %d ms", clicks, gap) << clicks << gap << single << twice;
        };
        row("aa", 100, "", "a");
        row("aa", 250, "", "a");
        row("aa", 251, "aa", "");
        row("aa", 600, "aa", "");
        row("aaa", 600, "aaa", "");
        row("ab", 100, "b", "");
        row("ab", 600, "ab", "");
    }

    void shouldTellDoubleClicksByTheirTimeStamps()
    {
        QFETCH(QString, clicks);
        QFETCH(int, gap);
        TestHost host(row(button("a", "doubleclick='true'") + button("b", "doubleclick='true'")));
        host.showEnabled();
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        const QSignalSpy doubleActive(&host.facade(), &MRToolBar::DoDoubleActive);
        // All clicks are delivered at once, as after a time in which the host was busy.
        int time = 1000;
        for (const QChar name : clicks)
            clickAt(host, name, time += gap);
        QTest::qWait(300);
        QTEST(TestHost::texts(active).join(""), "single");
        QTEST(TestHost::texts(doubleActive).join(""), "twice");
    }

    void shouldUseTheClockForTriggersWithoutTimeStamp_data()
    {
        QTest::addColumn<bool>("isClicked"); // By an event without time stamp, else by trigger().
        QTest::addColumn<int>("busy"); // Milliseconds between the two without event processing.
        QTest::addColumn<QString>("heard");
        QTest::newRow("triggers") << false << 0 << "twice";
        QTest::newRow("clicks") << true << 0 << "twice";
        QTest::newRow("triggers while busy") << false << 300 << "a a";
        QTest::newRow("clicks while busy") << true << 300 << "a a";
    }

    void shouldUseTheClockForTriggersWithoutTimeStamp()
    {
        QFETCH(bool, isClicked);
        QFETCH(int, busy);
        TestHost host(row(button("a", "doubleclick='true'")));
        host.showEnabled();
        // The time of an earlier click of the user must not count.
        clickAt(host, "a", 1000);
        QTest::qWait(300);
        QStringList heard;
        connect(&host.facade(), &MRToolBar::DoActive, this,
                [&heard](const QString &name) { heard.append(name); });
        connect(&host.facade(), &MRToolBar::DoDoubleActive, this,
                [&heard] { heard.append("twice"); });
        for (int time = 0; time < 2; ++time) {
            if (isClicked)
                QTest::mouseClick(rowButton(host, "a"), Qt::LeftButton);
            else
                trigger(host, "a");
            if (time == 0)
                QThread::msleep(static_cast<unsigned long>(busy));
        }
        QTest::qWait(300);
        QTEST(heard.join(' '), "heard");
    }

    void shouldAllowDeletionOfTheWindowOnALateClick()
    {
        TestHost host(row(button("a", "doubleclick='true'")));
        host.showEnabled();
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
            ActionData::set(&command, true);
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
        QVERIFY(active.isEmpty());
        QVERIFY(host.action("c")->isChecked());
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
        QVERIFY(!host.find<MRDropButton>("m")->isChecked());
        QVERIFY(active.isEmpty());
        QVERIFY(!host.action("off")->isVisible() && host.action("on")->isEnabled());
        QVERIFY(!host.facade().GetCompositeEnable("off"));
        QVERIFY(!host.facade().GetCompositeEnable("d_gotopage"));
        QCOMPARE(host.find<QLineEdit>("d_gotopage")->text(), QString());
        QCOMPARE(host.find<QLabel>("d_totalpagelabel")->text(), QStringLiteral("/ "));
    }
};

QTEST_MAIN(DispatchTest)
#include "tst_dispatch.moc"
