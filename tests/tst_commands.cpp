// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "tests/support/WarningTrap.h"
#include "toolbar/MRToolBarCommands.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Describe;

namespace {

QString checkableRow()
{
    return button("a") + button("b", "checkable='true'") + button("m_one", "checkable='true'")
           + button("m_two", "checkable='true'");
}

const QString ownIcon = "icon=':/mr_toolbar/Resources/lum/icons/icon24/%1.svg'";

/** A command that a host gives a function, and a part of what its author is told. */
const struct
{
    const char *name;
    QString sections;
    const char *command;
    const char *message;
} mistakes[]{
    {"a name", row(button("a")), "b", "name \"b\""},
    {"the name of an area", row(button("a")), "toolbar_none", "toolbar_none"},
    {"an icon", row(button("a", "icon='icon24/nothing.svg'")), "a", "icon \"icon24/nothing.svg\""},
    {"a resource", row(button("a", ownIcon.arg("none"))), "a", "none.svg"},
    {"a theme's icon", row(button("a", "icon='theme:none'")), "a", "theme:none"},
    {"a resource that is there", row(button("a", ownIcon.arg("ZoomIn"))), "a", ""},
    {"a described name", row(button("a")), "a", ""},
    {"a row not made", row("", tab("later", button("a"))), "a", ""},
    {"a part of quick access", section("quickaccessbar", button("qbar_f_open")), "open", ""},
    {"a menu's way", section("appbutton", menu("file", item("menu_f_save"))), "f_save", ""},
    {"an area", row(""), "toolbar_quickaccessbar/set", ""},
};

} // namespace

/** MRToolBarCommands: commands by name. */
class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRunCommandsAndReportWhatHasChanged()
    {
        TestHost host = TestHost::shown(row(checkableRow()));
        MRToolBarCommands commands(&host.facade());
        bool isOpen = false;
        QString mode = "m_two";
        QStringList used;
        commands.add("a", [&] { isOpen = true; });
        commands.add("b").usableWhen([&] { return isOpen; }).checkedWhen([&] { return isOpen; });
        commands.addPrefix("m_", [&](const QString &name) { mode = name; })
            .checkedWhen([&](const QString &name) { return name == mode; });
        connect(&commands, &MRToolBarCommands::triggered,
                [&](const QString &name) { used += name; });
        connect(&commands, &MRToolBarCommands::unhandled,
                [&](const QString &name) { used += "no " + name; });
        QTRY_VERIFY(!host.action("b")->isEnabled() && !host.action("b")->isChecked());
        QVERIFY(host.action("m_two")->isChecked() && !host.action("m_one")->isChecked());

        const QSignalSpy usable(&host.facade(),
                                SIGNAL(Inner_DoSetControlUsableState(QString &, bool)));
        const QSignalSpy checked(&host.facade(),
                                 SIGNAL(Inner_DoSetControlCheckedState(QString &, bool)));
        commands.refresh();
        QCOMPARE(usable.count() + checked.count(), 0);
        host.action("a")->trigger();
        QVERIFY(host.action("b")->isEnabled() && host.action("b")->isChecked());
        QVERIFY(usable.count() == 1 && checked.count() == 1);
        host.action("m_one")->trigger();
        QVERIFY(host.action("m_one")->isChecked() && !host.action("m_two")->isChecked());
        // The user has unchecked what stays the mode; it is checked again.
        host.action("m_one")->trigger();
        QVERIFY(host.action("m_one")->isChecked());
        host.action("b")->trigger();
        QVERIFY(host.action("b")->isChecked());
        QCOMPARE(used.join(','), QString("a,m_one,m_one,no b"));

        isOpen = false;
        QVERIFY(!commands.run("b") && !commands.run("unknown") && commands.run("m_two"));
        QVERIFY(!host.action("b")->isEnabled() && !host.action("b")->isChecked());
    }

    void shouldTellControlsThatAreMadeLater()
    {
        const QString menus = section("appbutton", menu("file", item("open") + item("never")));
        TestHost host = TestHost::shown(menus + row(button("a"), tab("later", checkableRow())));
        MRToolBarCommands commands(&host.facade());
        commands.add(QStringList{"a", "b", "open"}, [](const QString &) {}).checkedWhen([] {
            return true;
        });
        commands.refresh();
        QVERIFY(!host.action("b"));
        host.click("later");
        QVERIFY(host.action("b")->isEnabled() && host.action("b")->isChecked());

        // What a disabled toolbar does not take is told again.
        QString whole = "toolbar_whole";
        host.window().setEnabled(false);
        bool isUsable = false;
        commands.add("b").usableWhen([&] { return isUsable; });
        commands.refresh();
        host.window().setEnabled(true);
        commands.refresh();
        QVERIFY(!host.action("b")->isEnabled());
    }

    void shouldKeepTheShapeButtonOfATool()
    {
        const QString shapes = menu("tp_shape", item("tp_line", "checkable='true'"),
                                    "checkable='true' switchable='true'");
        TestHost host = TestHost::shown(row(shapes + button("b", "checkable='true'")));
        bool isOn = false;
        MRToolBarCommands commands(&host.facade());
        commands.add("tp_shape");
        commands.add("tp_line").checkedWhen([] { return true; });
        commands.add("b").checkedWhen([&] { return isOn; });
        commands.refresh();
        auto *shape = host.find<QToolButton>("tp_shape");
        QVERIFY(shape && shape->isChecked());
        isOn = true;
        commands.refresh();
        QVERIFY(host.action("b")->isChecked());
        QVERIFY(shape->isChecked());
    }

    void shouldFollowAnActionBothWays()
    {
        const QString keys = "checkable='true' shortcut='Ctrl+K'";
        TestHost host = TestHost::shown(row(button("a", keys)));
        auto *action = new QAction(&host.window());
        action->setCheckable(true);
        QSignalSpy toggled(action, &QAction::toggled);
        MRToolBarCommands commands(&host.facade());
        commands.add("a", action);
        QTRY_COMPARE(action->shortcut(), QKeySequence("Ctrl+K"));
        QAction *control = host.action("a");
        QCOMPARE(control->text(), QString("a"));

        QTest::keyClick(&host.window(), Qt::Key_K, Qt::ControlModifier);
        QTRY_COMPARE(toggled.count(), 1);
        QTRY_VERIFY(control->isChecked());
        control->trigger();
        QVERIFY(!action->isChecked() && !control->isChecked());

        action->setText("&Play...");
        action->setShortcut(QKeySequence("Ctrl+L"));
        action->setEnabled(false);
        QTRY_COMPARE(control->text(), QString("Play"));
        QVERIFY(!control->isEnabled() && control->toolTip().contains("Ctrl+L"));
        QCOMPARE(control->shortcut(), QKeySequence("Ctrl+L"));
        action->setEnabled(true);
        QTRY_VERIFY(control->isEnabled());
        QTest::keyClick(&host.window(), Qt::Key_L, Qt::ControlModifier);
        QTRY_COMPARE(toggled.count(), 3);

        delete action;
        QTRY_VERIFY(!control->isEnabled());
        QVERIFY(!commands.run("a"));
    }

    void shouldConnectPagesAndZoom()
    {
        const QString zooms = choice("vzmode_50p", "50%") + choice("vzmode_fitpage", "Page");
        const QString buttons = button("d_prevpage") + button("d_nextpage")
                                + button("vzmode_fitpage", "checkable='true'");
        TestHost host = TestHost::shown(row(buttons + field("d_gotopage", "text='Page'")
                                            + comboBox("v_zoom", zooms, "editable='true'")));
        int page = 1;
        QString mode = "vzmode_50p";
        int choices = 0;
        MRToolBarCommands commands(&host.facade());
        commands.setPages([&] { return page; }, [] { return 3; },
                          [&](int wanted) { page = wanted; });
        commands.setZoom([&] { return mode; },
                         [&](const QString &wanted) {
                             mode = wanted;
                             ++choices;
                         });
        commands.refresh();
        QVERIFY(!host.action("d_prevpage")->isEnabled() && host.action("d_nextpage")->isEnabled());
        host.action("d_nextpage")->trigger();
        QCOMPARE(page, 2);
        auto *pageField = host.find<QLineEdit>("d_gotopage");
        QVERIFY(pageField->text().startsWith('2') && host.action("d_prevpage")->isEnabled());
        // What the user is typing stays.
        pageField->setText("3");
        commands.refresh();
        QCOMPARE(pageField->text(), QString("3"));
        Q_EMIT host.facade().DoGotoPage(3);
        QCOMPARE(page, 3);
        QVERIFY(!host.action("d_nextpage")->isEnabled());

        QCOMPARE(host.find<QComboBox>("v_zoom")->currentText(), QString("50%"));
        host.action("vzmode_fitpage")->trigger();
        QVERIFY(mode == "vzmode_fitpage" && host.action("vzmode_fitpage")->isChecked());
        QCOMPARE(host.find<QComboBox>("v_zoom")->currentText(), QString("Page"));
        QCOMPARE(choices, 1);
        QCOMPARE(MRToolBarCommands::zoomPercent("vzmode_37.5p"), 37.5);
        QCOMPARE(MRToolBarCommands::zoomPercent(MRToolBarCommands::zoomMode(125)), 125.0);
        QCOMPARE(MRToolBarCommands::zoomPercent("vzmode_fitpage"), 0.0);
    }

    void shouldKeepRecentFilesAndTheToolBar()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath("host.ini"), QSettings::IniFormat);
        const QString recent = menu("f_openrecent", item("no_file") + item("f_clearhistory"));
        const QString sections = section("appbutton", menu("file", recent))
                                 + row(button("a"), tab("second", button("b")));
        {
            TestHost host = TestHost::shown(sections);
            MRToolBarCommands commands(&host.facade());
            commands.keepIn(&settings);
            commands.setRecentFiles([](const QString &) {}, 2);
            for (const char *file : {"/one", "/two", "/three", "/two"})
                commands.addRecentFile(file);
            QString tab = "second";
            host.facade().DoShowTabSlot(tab);
        }
        QStringList opened;
        TestHost host = TestHost::shown(sections);
        MRToolBarCommands commands(&host.facade());
        commands.keepIn(&settings);
        commands.setRecentFiles([&](const QString &file) { opened += file; });
        QCOMPARE(commands.recentFiles(), (QStringList{"/two", "/three"}));
        QVERIFY(host.find<QPushButton>("second")->isChecked());
        host.facade().Inner_DoOpenFileSlot("/three");
        host.facade().Inner_DoActiveSlot("f_clearhistory");
        QCOMPARE(opened, QStringList("/three"));
        QVERIFY(commands.recentFiles().isEmpty());
        QVERIFY(settings.value("toolbar/recentfiles").toStringList().isEmpty());
    }

    void shouldSurviveWhateverAFunctionDeletes_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::addColumn<QString>("function");
        for (const char *victim : {"window", "facade", "commands", "action", "all"}) {
            for (const char *function : {"run", "usable", "checked", "text", "value", "shortcut"})
                QTest::addRow("the %s in %s", victim, function) << victim << function;
        }
    }

    void shouldSurviveWhateverAFunctionDeletes()
    {
        QFETCH(const QString, victim);
        QFETCH(const QString, function);
        TestHost host = TestHost::shown(row(checkableRow()));
        auto action = std::make_unique<QAction>();
        auto commands = std::make_unique<MRToolBarCommands>(&host.facade());
        bool isArmed = false;
        const auto strike = [&, victim](const char *place) {
            if (!isArmed || function != place)
                return;
            isArmed = false;
            if (victim == "action" || victim == "all")
                action.reset();
            if (victim == "commands" || victim == "all")
                commands.reset();
            if (victim == "window" || victim == "all")
                host.deleteWindow();
            if (victim == "facade" || victim == "all")
                host.deleteFacade();
        };
        commands->add("a", [strike] { strike("run"); });
        commands->add("b")
            .usableWhen([strike] { return strike("usable"), true; })
            .checkedWhen([strike] { return strike("checked"), true; })
            .withText([strike] { return strike("text"), QString("b"); });
        commands->add("m_one", action.get());
        commands->add("m_two").withToolTip(MRToolBarCommands::Text());
        commands->setContext("context", [strike] { return strike("value"), true; });
        commands->refresh();
        connect(action.get(), &QAction::changed, [strike] { strike("shortcut"); });

        isArmed = true;
        if (function == "shortcut")
            action->setShortcut(QKeySequence("Ctrl+K"));
        else
            host.action("a")->trigger();
        QCoreApplication::processEvents();
        QVERIFY(!isArmed);
        if (commands) {
            commands->refreshAll();
            commands->setToolBar(nullptr);
        }
    }

    void shouldTellAuthorsOfMistakesIfAsked_data() { addRows(mistakes); }

    void shouldTellAuthorsOfMistakesIfAsked()
    {
        const auto &mistake = rowOf(mistakes);
        const QString message = mistake.message;
        for (const bool isAsked : {false, true}) {
            QLoggingCategory::setFilterRules(isAsked ? "mrtoolbar.description=true" : "");
            const WarningTrap trap;
            TestHost host = TestHost::shown(mistake.sections);
            MRToolBarCommands commands(&host.facade());
            commands.add(mistake.command);
            commands.refresh();
            const QString told = WarningTrap::warnings().join('\n');
            QLoggingCategory::setFilterRules("");
            QVERIFY2(isAsked && !message.isEmpty() ? told.contains(message) : told.isEmpty(),
                     qPrintable(told));
        }
    }
};

QTEST_MAIN(CommandsTest)
#include "tst_commands.moc"
