// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/FieldHost.h"
#include "tests/support/Rows.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QAccessible>
#include <QDockWidget>
#include <QShortcut>
#include <QTemporaryFile>
#include <QToolBar>

using namespace Describe;

namespace {

const QString inWindow = "shortcut='Ctrl+T' shortcutscope='window'";

const struct
{
    const char *name;
    QString sections;
    bool isMade;
} places[] = {
    {"a button of the row on show", tabs(button("x", inWindow), button("b")), true},
    {"a button of a row not made", tabs(button("a"), button("x", inWindow)), false},
    {"a button of a group", tabs(button("a"), group("g", button("x", inWindow))), false},
    {"an entry of a row's menu on show", tabs(menu("m", item("x", inWindow)), button("b")), true},
    {"an entry of a row's menu not made", tabs(button("a"), menu("m", item("x", inWindow))), false},
    {"an entry of an application menu",
     fileMenu(menu("more", item("x", inWindow))) + row(button("a")), false},
    {"a way to a command", fileMenu(item("menu_x", inWindow)) + row(button("x")), false},
};

/** What gives the focus to a field outside of the main window. */
const struct
{
    const char *name;
    void (*put)(QMainWindow &window, QWidget &outer, QLineEdit *field);
} outside[] = {
    {"the main window is a part of another",
     [](QMainWindow &window, QWidget &outer, QLineEdit *field) {
         window.setParent(&outer);
         field->setParent(&outer);
         outer.resize(1000, 600);
         outer.show();
         window.show();
     }},
    {"a floating dock",
     [](QMainWindow &window, QWidget &, QLineEdit *field) {
         auto *dock = new QDockWidget(&window);
         dock->setWidget(field);
         window.addDockWidget(Qt::LeftDockWidgetArea, dock);
         dock->setFloating(true);
         dock->show();
     }},
};

} // namespace

/** Shortcuts of the whole window, and what assistive technology is told of tabs. */
class KeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTriggerByItsKeysWhereverTheCommandStands_data() { addRows(places); }
    void shouldTriggerByItsKeysWhereverTheCommandStands()
    {
        FieldHost host(rowOf(places).sections);
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this,
                [&host] { host.enableEverything(); });
        host.press();
        host.press();
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
        QCOMPARE(host.asked.count(), rowOf(places).isMade ? 0 : 1);
        // Hiding the toolbar does not take the keys away, disabling it does.
        host.setVisible("toolbar_whole", false);
        host.press();
        QCOMPARE(host.commands().size(), 3);
        host.setVisible("toolbar_whole", true);
        host.setUsable("toolbar_whole", false);
        host.press();
        QCOMPARE(host.commands().size(), 3);
    }

    void shouldObeyTheScopeOfTheRoot()
    {
        for (const QString &scope : {QString("shortcutscope='window'"), QString()}) {
            QTemporaryFile file;
            QVERIFY(file.open());
            const QString sections = tabs(button("a"), button("x", "shortcut='Ctrl+T'"));
            file.write(("<uiconfig prefix='' " + scope + ">" + sections + "</uiconfig>").toUtf8());
            file.close();
            const auto host = TestHost::withFile(file.fileName());
            host->showEnabled();
            const QSignalSpy active(&host->facade(), &MRToolBar::DoActive);
            QTest::keyClick(&host->window(), Qt::Key_T, Qt::ControlModifier);
            QCOMPARE(active.isEmpty(), scope.isEmpty());
            QCOMPARE(host->window().findChildren<QShortcut *>().isEmpty(), scope.isEmpty());
        }
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

    void shouldForgetAnEarlierCheck()
    {
        const QString check = "checkable='true' group='g' ";
        for (const bool isReset : {true, false}) {
            FieldHost host(tabs(button("a"), button("y", check) + button("x", check + inWindow)));
            host.setChecked("x", true);
            if (isReset)
                host.facade().DoResetToolbarSlot();
            else
                host.setChecked("y", true);
            host.click("other");
            QVERIFY(!host.facade().GetControlCheckedState("x"));
        }
    }

    void shouldNotTriggerWhatTheHostTakesAwayWhenItIsAsked()
    {
        for (const bool isDeleted : {false, true}) {
            FieldHost host(tabs(button("a"), button("x", inWindow)));
            connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.window(), [&] {
                if (isDeleted)
                    delete host.find<QToolBar>("mrtoolbar");
                else
                    host.setUsable("x", false);
            });
            host.press();
            QCOMPARE(host.asked.count(), 1);
            QCOMPARE(host.commands(), QStringList());
            runDeferredDeletes();
            QCOMPARE(host.window().findChildren<QShortcut *>().isEmpty(), isDeleted);
        }
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
        own.setEnabled(false);
        host.press();
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
    }

    void shouldActWhereTheFocusIsOutsideOfTheMainWindow_data() { addRows(outside); }
    void shouldActWhereTheFocusIsOutsideOfTheMainWindow()
    {
        QWidget outer;
        FieldHost host(tabs(button("a"), button("x", inWindow)));
        auto *field = new QLineEdit;
        rowOf(outside).put(host.window(), outer, field);
        field->show();
        field->activateWindow();
        field->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), field);
        host.setUsable("x", false);
        host.press();
        QCOMPARE(host.asked.count(), 0);
        host.setUsable("x", true);

        QAction own;
        own.setShortcut(QKeySequence("Ctrl+T"));
        field->window()->addAction(&own);
        const QSignalSpy owned(&own, &QAction::triggered);
        host.press();
        QCOMPARE(owned.count(), 1);
        own.setEnabled(false);
        host.press();
        QCOMPARE(host.commands(), QStringList("x"));
        host.window().setParent(nullptr);
    }

    void shouldCallTabsTabs()
    {
        FieldHost host(tabs(button("a"), button("b")) + section("addtional", button("h_help")));
        const auto spoken = [&host](const char *name) {
            return QAccessible::queryAccessibleInterface(host.find<QPushButton>(name));
        };
        QAccessibleInterface *shown = spoken("row");
        QAccessibleInterface *other = spoken("other");
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
        QCOMPARE(spoken("h_help")->role(), QAccessible::Button);
    }
};

QTEST_MAIN(KeysTest)
#include "tst_keys.moc"
