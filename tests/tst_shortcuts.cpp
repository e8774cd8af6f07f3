// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QWindow>

using namespace Describe;

namespace {

const QString withKey = "shortcut='Ctrl+T'";
const QKeySequence key("Ctrl+T");

QString appMenu(const QString &entries)
{
    return section("appbutton", menu("menu_file", entries));
}

/** Tabs "row", on show, and "other". */
QString tabs(const QString &controls, const QString &otherControls = button("plain"))
{
    return row(controls, tab("other", otherControls));
}

/** A host with a field of its own and, if requested, a shortcut for the key. */
class KeyHost : public TestHost
{
public:
    explicit KeyHost(const QString &sections, bool hasShortcut = false)
        : TestHost(sections)
        , m_active(&facade(), &MRToolBar::DoActive)
    {
        window().setCentralWidget(m_field);
        showEnabled();
        m_field->setFocus();
        if (!hasShortcut)
            return;
        auto *shortcut = new QShortcut(key, &window());
        QObject::connect(shortcut, &QShortcut::activated, shortcut, [this] { ++m_hostCalls; });
    }

    void openMenus()
    {
        whenMenuPops([](QMenu *) {});
        click("menu_file");
        enableEverything();
    }
    void openTab(const QString &name)
    {
        find<QPushButton>(name)->click();
        enableEverything();
    }

    /** Sends the key to the focused widget, both directly and through the window. */
    void press(QWidget *focused)
    {
        // A menu that has just been closed may still be the active window.
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        focused->setFocus(Qt::TabFocusReason);
        m_active.clear();
        m_hostCalls = 0;
        QTest::keyClick(focused, Qt::Key_T, Qt::ControlModifier);
        QTest::keyClick(focused->window()->windowHandle(), Qt::Key_T, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }
    QWidget *field() const { return m_field; }
    int hostCalls() const { return m_hostCalls; }
    QStringList commands() const { return texts(m_active); }

    /** The widgets that may have the focus: the host's field and the controls of the toolbar. */
    QWidgetList focusPlaces() const
    {
        QWidgetList places{m_field};
        const QList<QAbstractButton *> buttons = toolBar()->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->isVisible() && button->isEnabled() && button->focusPolicy() != Qt::NoFocus)
                places.append(button);
        }
        return places;
    }

private:
    QLineEdit *m_field = new QLineEdit;
    QSignalSpy m_active;
    int m_hostCalls = 0;
};

} // namespace

/** The shortcuts of entries in the description. */
class ShortcutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheKeysOfApplicationMenusWithoutTakingThem_data()
    {
        QTest::addColumn<QString>("sections");
        const QString file = appMenu(item("x", withKey) + menu("inner", item("y", withKey)));
        const QString drop = menu("drop", item("x") + item("z"));
        QTest::newRow("in the menu alone") << file + tabs(button("plain"));
        QTest::newRow("on the row") << file + tabs(button("x"));
        QTest::newRow("on two rows") << file + tabs(button("x"), button("x"));
        QTest::newRow("on a row that is filled later") << file + tabs(button("a"), button("x"));
        QTest::newRow("in a group") << file + tabs(group("g", button("x") + button("y")));
        QTest::newRow("in a group that is made later")
            << file + tabs(button("a"), group("g", button("x")));
        QTest::newRow("in a drop menu") << file + tabs(drop);
        QTest::newRow("in a menu of a drop menu")
            << file + tabs(menu("drop", item("z") + menu("in", item("x") + item("y"))));
        QTest::newRow("in the quick access bar")
            << file + section("quickaccessbar", button("x")) + tabs(button("x"));
        QTest::newRow("in the options of the search")
            << file + section("searchbar", button("s_next") + optionsButton("st_set", item("x")));
    }

    void shouldShowTheKeysOfApplicationMenusWithoutTakingThem()
    {
        QFETCH(QString, sections);
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            for (const bool hasShortcut : {true, false}) {
                KeyHost host(sections, hasShortcut);
                host.openMenus();
                QCOMPARE(host.action("x")->shortcut(), key);
                for (const char *tab : {"", "other", "row"}) {
                    if (host.find<QPushButton>(tab))
                        host.openTab(tab);
                    const QWidgetList places = host.focusPlaces();
                    for (QWidget *place : places) {
                        host.press(place);
                        QVERIFY2(host.commands().isEmpty(), qPrintable(place->objectName()));
                        QCOMPARE(host.hostCalls(), hasShortcut ? 2 : 0);
                    }
                }
                QCOMPARE(host.action("x")->shortcut(), key);
            }
        }
    }

    void shouldNotTriggerByAKeyInAnOpenMenu()
    {
        KeyHost host(appMenu(item("x", withKey)) + tabs(button("x")));
        host.openMenus();
        auto *rowButton = host.focusPlaces().last();
        QCOMPARE(rowButton->actions(), QList<QAction *>{host.action("x")});
        rowButton->setFocus(Qt::TabFocusReason);
        const QSignalSpy triggers(host.action("x"), &QAction::triggered);
        bool wasOpen = false;
        whenMenuPops([&wasOpen, &host](QMenu *menu) {
            wasOpen = host.action("x")->shortcut() == key;
            QTest::keyClick(menu, Qt::Key_T, Qt::ControlModifier);
            QTest::keyClick(menu->windowHandle(), Qt::Key_T, Qt::ControlModifier);
        });
        host.click("menu_file");
        QVERIFY(wasOpen);
        QCOMPARE(triggers.count(), 0);
    }

    void shouldKeepTheKeyOfARowMenuWorking_data()
    {
        QTest::addColumn<QString>("sections");
        QTest::addColumn<bool>("menusFirst");
        const QString drop = menu("drop", item("x", withKey) + item("z"));
        for (const bool menusFirst : {false, true}) {
            const QByteArray order = menusFirst ? " after the menus" : " before the menus";
            QTest::newRow("alone" + order)
                << appMenu(item("y")) + tabs(button("plain"), drop) << menusFirst;
            QTest::newRow("shared" + order)
                << appMenu(item("x", withKey)) + tabs(button("plain"), drop) << menusFirst;
        }
    }

    void shouldKeepTheKeyOfARowMenuWorking()
    {
        QFETCH(QString, sections);
        QFETCH(bool, menusFirst);
        KeyHost host(sections);
        if (menusFirst)
            host.openMenus();
        host.openTab("other");
        host.press(host.field());
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
        host.openMenus();
        host.press(host.field());
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
        host.openTab("row");
        host.press(host.field());
        QCOMPARE(host.commands(), QStringList());
    }

    void shouldKeepTheKeyOfASearchOptionWorking()
    {
        KeyHost host(
            appMenu(item("y"))
            + section("searchbar", button("s_next") + optionsButton("st_set", item("x", withKey))));
        const QSignalSpy triggers(host.action("x"), &QAction::triggered);
        host.press(host.field());
        QCOMPARE(triggers.count(), 2);
        host.openMenus();
        host.press(host.field());
        QCOMPARE(triggers.count(), 4);
    }

    void shouldShowTheKeyOfTheMenuInsteadOfTheRowMenus()
    {
        KeyHost host(appMenu(item("x", withKey)) + tabs(menu("drop", item("x", "shortcut='F2'"))));
        host.openMenus();
        QCOMPARE(host.action("x")->shortcut(), key);
        host.press(host.field());
        QCOMPARE(host.commands(), QStringList());
    }

    void shouldKeepAKeyThatTheHostGaveTheCommand()
    {
        KeyHost host(appMenu(item("x", withKey)) + tabs(button("x")));
        host.action("x")->setShortcut(key);
        host.openMenus();
        host.press(host.field());
        QCOMPARE(host.commands(), (QStringList{"x", "x"}));
    }
};

QTEST_MAIN(ShortcutTest)
#include "tst_shortcuts.moc"
