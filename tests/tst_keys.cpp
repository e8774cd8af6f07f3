// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/FieldHost.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QAccessible>
#include <QShortcut>
#include <QTemporaryFile>
#include <QToolBar>

using namespace Describe;

namespace {

const QString inWindow = "shortcut='Ctrl+T' shortcutscope='window'";

} // namespace

/** Shortcuts of the whole window, and what assistive technology is told of tabs. */
class KeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTriggerByItsKeysWhereverTheCommandStands_data()
    {
        QTest::addColumn<QString>("sections");
        QTest::addColumn<bool>("isMade");
        QTest::newRow("a button of the row on show")
            << tabs(button("x", inWindow), button("b")) << true;
        QTest::newRow("a button of a row not made")
            << tabs(button("a"), button("x", inWindow)) << false;
        QTest::newRow("a button of a group")
            << tabs(button("a"), group("g", button("b") + button("x", inWindow))) << false;
        QTest::newRow("an entry of a row's menu on show")
            << tabs(menu("m", item("x", inWindow)), button("b")) << true;
        QTest::newRow("an entry of a row's menu not made")
            << tabs(button("a"), menu("m", item("x", inWindow))) << false;
        QTest::newRow("an entry of an application menu")
            << fileMenu(menu("more", item("x", inWindow))) + row(button("a")) << false;
        QTest::newRow("a way to a command")
            << fileMenu(item("menu_x", inWindow)) + row(button("x")) << false;
    }

    void shouldTriggerByItsKeysWhereverTheCommandStands()
    {
        QFETCH(QString, sections);
        QFETCH(bool, isMade);
        FieldHost host(sections);
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this,
                [&host] { host.enableEverything(); });
        host.press();
        QCOMPARE(host.asked.count(), isMade ? 0 : 1);
        QCOMPARE(host.commands(), QStringList("x"));
        host.press();
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
        QCOMPARE(host.asked.count(), isMade ? 0 : 1);
        // Neither folding nor hiding the toolbar takes the keys away, disabling it does.
        host.setVisible("toolbar_whole", false);
        host.press();
        QCOMPARE(host.commands().size(), 3);
        host.setVisible("toolbar_whole", true);
        host.setUsable("toolbar_whole", false);
        host.press();
        QCOMPARE(host.commands().size(), 3);
    }

    void shouldGiveEveryShortcutOfTheRootsScopeTheWindow()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        const QString sections = tabs(button("a"), button("x", "shortcut='Ctrl+T'"));
        file.write(
            ("<uiconfig prefix='' shortcutscope='window'>" + sections + "</uiconfig>").toUtf8());
        file.close();
        const auto host = TestHost::withFile(file.fileName());
        host->showEnabled();
        const QSignalSpy active(&host->facade(), &MRToolBar::DoActive);
        QTest::keyClick(&host->window(), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(TestHost::texts(active), QStringList("x"));
    }

    void shouldHaveNoShortcutsWithoutTheScope()
    {
        FieldHost host(fileMenu(item("y", "shortcut='Ctrl+T'"))
                       + tabs(button("a"), button("x", "shortcut='Ctrl+T'")));
        QVERIFY(host.window().findChildren<QShortcut *>().isEmpty());
        host.press();
        QCOMPARE(host.asked.count(), 0);
    }

    void shouldObeyTheStateReportedBeforeTheCommandIsMade()
    {
        for (const QString &sections : {tabs(button("a"), button("x", inWindow)),
                                        fileMenu(item("x", inWindow)) + row(button("a"))}) {
            FieldHost host(sections);
            host.setUsable("x", false);
            host.press();
            QCOMPARE(host.asked.count(), 0);
            // The host has said so once, and says nothing when it is asked.
            host.setUsable("x", true);
            host.press();
            QCOMPARE(host.asked.count(), 1);
            QCOMPARE(host.commands(), QStringList("x"));
            host.setUsable("x", false);
            host.press();
            QCOMPARE(host.commands(), QStringList("x"));
        }
    }

    void shouldNotTriggerWhatTheHostDisablesWhenItIsAsked()
    {
        FieldHost host(tabs(button("a"), button("x", inWindow)));
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this,
                [&host] { host.setUsable("x", false); });
        host.press();
        QCOMPARE(host.asked.count(), 1);
        QCOMPARE(host.commands(), QStringList());
    }

    void shouldSurviveAHostThatDeletesItWhenItIsAsked()
    {
        FieldHost host(tabs(button("a"), button("x", inWindow)));
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this,
                [&host] { delete host.find<QToolBar>("mrtoolbar"); });
        host.press();
        QCOMPARE(host.asked.count(), 1);
        runDeferredDeletes();
        QVERIFY(host.window().findChildren<QShortcut *>().isEmpty());
    }

    void shouldLeaveTheKeysToTheFirstCommandTheHostAndTheField()
    {
        FieldHost host(
            tabs(button("x", inWindow) + button("c", "shortcut='Ctrl+C' shortcutscope='window'"),
                 button("y", inWindow)));
        host.press();
        QCOMPARE(host.commands(), QStringList("x"));

        host.field->setText("copied");
        host.field->selectAll();
        host.press(Qt::Key_C);
        QCOMPARE(host.commands(), QStringList("x"));

        QAction own;
        own.setShortcut(QKeySequence("Ctrl+T"));
        host.window().addAction(&own);
        const QSignalSpy owned(&own, &QAction::triggered);
        host.press();
        host.press();
        QCOMPARE(owned.count(), 2);
        QCOMPARE(host.commands(), QStringList("x"));
        own.setEnabled(false);
        host.press();
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
    }

    void shouldCallTabsTabs()
    {
        FieldHost host(tabs(button("a"), button("b")) + section("addtional", button("h_help")));
        auto *first = host.find<QPushButton>("row");
        auto *second = host.find<QPushButton>("other");
        QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(first);
        QAccessibleInterface *other = QAccessible::queryAccessibleInterface(second);
        QCOMPARE(shown->role(), QAccessible::PageTab);
        QCOMPARE(shown->parent()->role(), QAccessible::PageTabList);
        QCOMPARE(shown->text(QAccessible::Name), QStringLiteral("row"));
        QVERIFY(shown->state().selected && !other->state().selected);
        QVERIFY(!shown->state().checkable && other->state().focusable);
        QAccessibleActionInterface *actions = other->actionInterface();
        actions->doAction(actions->actionNames().first());
        QTRY_VERIFY(other->state().selected);
        QVERIFY(host.find<MRMainToolBar>("other")->isVisible());
        QVERIFY(!shown->state().selected);
        QWidget *help = host.find<QPushButton>("h_help");
        QCOMPARE(QAccessible::queryAccessibleInterface(help)->role(), QAccessible::Button);
    }
};

QTEST_MAIN(KeysTest)
#include "tst_keys.moc"
