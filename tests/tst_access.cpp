// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/FieldHost.h"
#include "tests/support/Menus.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestDocuments.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

using namespace Describe;

namespace {

/** The visible widgets that a user operates. */
QWidgetList shownControls(const QWidget *area)
{
    QWidgetList controls;
    const QWidgetList widgets = area->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isControl = qobject_cast<QAbstractButton *>(widget)
                               || qobject_cast<QLineEdit *>(widget)
                               || qobject_cast<QComboBox *>(widget);
        if (isControl && widget->isVisible() && !widget->visibleRegion().isEmpty())
            controls.append(widget);
    }
    return controls;
}

/** Whether it is the container of a scroll arrow, or a button described without text and icon. */
bool isWithoutMeaning(const QWidget *control)
{
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    return control->objectName().endsWith(QLatin1String("extend"))
           || (button && button->text().isEmpty() && button->icon().isNull());
}

/** Opens the menu of a button and returns how many entries can be chosen. */
int entriesOf(QToolButton *button)
{
    int entries = 0;
    whenMenuPops([&entries](QMenu *menu) { entries = menu->actions().size(); });
    QTest::mouseClick(button, Qt::LeftButton, {}, arrowOf(button));
    return entries;
}

const QString withKey = "shortcut='Ctrl+T'";
const QKeySequence key("Ctrl+T");
const QString plain = button("plain");

/** A host that has, if requested, a shortcut of its own for the key. */
class KeyHost : public FieldHost
{
public:
    explicit KeyHost(const QString &sections, bool hasShortcut = false)
        : FieldHost(sections)
    {
        if (!hasShortcut)
            return;
        auto *shortcut = new QShortcut(key, &window());
        QObject::connect(shortcut, &QShortcut::activated, shortcut, [this] { ++hostCalls; });
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
    void pressIn(QWidget *focused)
    {
        // A menu that has just been closed may still be the active window.
        activate();
        focused->setFocus(Qt::TabFocusReason);
        active.clear();
        hostCalls = 0;
        QTest::keyClick(focused, Qt::Key_T, Qt::ControlModifier);
        QTest::keyClick(focused->window()->windowHandle(), Qt::Key_T, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }

    int hostCalls = 0;

    /** The widgets that may have the focus: the host's field and the controls of the toolbar. */
    QWidgetList focusPlaces() const
    {
        QWidgetList places{field};
        const QWidgetList controls = shownControls(toolBar());
        for (QWidget *control : controls) {
            if (qobject_cast<QAbstractButton *>(control) && control->isEnabled()
                && control->focusPolicy() != Qt::NoFocus)
                places.append(control);
        }
        return places;
    }
};

} // namespace

/** Accessible names and roles, the use by the keyboard alone, and the shortcuts of entries. */
class AccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveEveryControlAnAccessibleNameAndRole_data() { TestDocuments::addShipped(); }

    void shouldGiveEveryControlAnAccessibleNameAndRole()
    {
        QFETCH(QString, path);
        const SkinChoice choice;
        const auto host = TestHost::withFile(path);
        host->show();
        const QWidgetList controls = shownControls(host->toolBar());
        QVERIFY(controls.size() > 20);
        for (QWidget *control : controls) {
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            QVERIFY(accessible);
            const QString place =
                control->parentWidget()->objectName() + '/' + control->objectName();
            QVERIFY2(accessible->role() != QAccessible::NoRole, qPrintable(place));
            if (!isWithoutMeaning(control))
                QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), qPrintable(place));
        }
    }

    void shouldMoveTheFocusAlongTheTopLineThenTheRowByTab_data() { TestDocuments::addShipped(); }

    void shouldMoveTheFocusAlongTheTopLineThenTheRowByTab()
    {
        QFETCH(QString, path);
        const SkinChoice choice;
        const auto host = TestHost::withFile(path);
        host->show();
        host->enableEverything();
        const QWidget *stack = host->find<QStackedWidget>(QStringLiteral("tabwidget"));
        host->find<QPushButton>(QStringLiteral("menu_file"))->setFocus(Qt::TabFocusReason);

        QWidgetList visited;
        for (int step = 0; step < 60; ++step) {
            QWidget *focused = QApplication::focusWidget();
            if (!focused || visited.contains(focused))
                break;
            visited.append(focused);
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QVERIFY2(visited.size() > 20, "The row is not reached");
        for (int i = 1; i < visited.size(); ++i) {
            const QWidget *before = visited.at(i - 1);
            const QWidget *after = visited.at(i);
            const bool isSameLine = stack->isAncestorOf(before) == stack->isAncestorOf(after);
            if (!isSameLine || before->isAncestorOf(after))
                continue;
            QVERIFY2(before->mapToGlobal(QPoint()).x() < after->mapToGlobal(QPoint()).x(),
                     qPrintable(before->objectName() + " > " + after->objectName()));
        }
    }

    void shouldReportEveryCommandAndOpenEveryMenuOfARowByMouse_data() { TestDocuments::addAll(); }

    void shouldReportEveryCommandAndOpenEveryMenuOfARowByMouse()
    {
        QFETCH(QString, path);
        const SkinChoice choice;
        const auto host = TestHost::withFile(path);
        connect(&host->facade(), &MRToolBar::DoRequestAuthority, this,
                [&host] { host->enableEverything(); });
        host->enableEverything();
        host->window().resize(host->scaled(1000), host->scaled(400));
        host->show();
        QSignalSpy active(&host->facade(), &MRToolBar::DoActive);
        int commands = 0;
        host->openEachTab([&](const QString &tab) {
            const auto *row = host->find<MRMainToolBar>(tab);
            for (auto *button : row ? row->findChildren<QToolButton *>() : QList<QToolButton *>()) {
                const QAction *action = button->defaultAction();
                if (!button->isVisible() || button->visibleRegion().isEmpty())
                    continue;
                if (button->menu()) {
                    QVERIFY2(entriesOf(button) > 0, qPrintable(button->objectName()));
                } else if (action && ActionData::isAvailable(action) && action->isEnabled()) {
                    active.clear();
                    QTest::mouseClick(button, Qt::LeftButton);
                    QTRY_COMPARE(TestHost::texts(active), QStringList(action->objectName()));
                    ++commands;
                }
            }
        });
        QVERIFY(commands >= 10);
    }

    void shouldGiveTheFocusByNameToWhatIsOnShowOnly()
    {
        const auto host = TestHost::withRelease();
        auto *document = new QLineEdit;
        host->window().setCentralWidget(document);
        host->window().resize(host->scaled(500), host->scaled(400));
        host->show();
        host->enableEverything();
        const auto giveFocus = [&host](const char *name) {
            return host->facade().DoSetFocusSlot(QLatin1String(name));
        };
        host->facade().DoSetPageInfoSlot(3, 12);
        for (const char *name : {"st_input", "d_gotopage"}) {
            QVERIFY2(giveFocus(name), name);
            const auto *field = host->find<QLineEdit>(QLatin1String(name));
            QCOMPARE(QApplication::focusWidget(), field);
            QCOMPARE(field->selectedText(), field->text());
            QTRY_COMPARE(field->visibleRegion().boundingRect(), field->rect());
        }
        QVERIFY(giveFocus(""));
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("menu_file"));

        document->setFocus();
        host->setUsable("d_gotopage", false);
        for (const char *name : {"d_gotopage", "st_icon", "no control"}) {
            QVERIFY2(!giveFocus(name), name);
            QCOMPARE(QApplication::focusWidget(), document);
        }
        host->setUsable("d_gotopage", true);
        host->setVisible("d_gotopage", false);
        QVERIFY(!giveFocus("d_gotopage"));
        delete host->find<QToolBar>("mrtoolbar");
        QVERIFY(!giveFocus(""));
    }

    void shouldReturnTheFocusToTheDocumentByEscape()
    {
        QMainWindow outer; // Hosts also embed their window in another one.
        const auto host = TestHost::withRelease();
        outer.setCentralWidget(new QWidget);
        host->window().setParent(outer.centralWidget());
        outer.resize(host->window().size());
        outer.show();
        auto *document = new QLineEdit;
        host->window().setCentralWidget(document);
        host->show();
        host->enableEverything();
        for (const char *name : {"st_input", "d_gotopage"}) {
            auto *field = host->find<QLineEdit>(QLatin1String(name));
            QTest::mouseClick(field, Qt::LeftButton);
            QCOMPARE(QApplication::focusWidget(), field);
            QTest::keyClick(field, Qt::Key_Escape);
            QCOMPARE(QApplication::focusWidget(), document);
        }
        // A click on a command does not take the focus from the document.
        host->click(QStringLiteral("e_preference"));
        QCOMPARE(QApplication::focusWidget(), document);
    }

    void shouldShowTheKeysOfApplicationMenusWithoutTakingThem_data()
    {
        QTest::addColumn<QString>("sections");
        const QString file = fileMenu(item("x", withKey) + menu("inner", item("y", withKey)));
        const QString drop = menu("drop", item("x") + item("z"));
        QTest::newRow("in the menu alone") << file + tabs(button("plain"), plain);
        QTest::newRow("on two rows") << file + tabs(button("x"), button("x"));
        QTest::newRow("on a row that is filled later") << file + tabs(button("a"), button("x"));
        QTest::newRow("in a group") << file + tabs(group("g", button("x") + button("y")), plain);
        QTest::newRow("in a group that is made later")
            << file + tabs(button("a"), group("g", button("x")));
        QTest::newRow("in a drop menu") << file + tabs(drop, plain);
        QTest::newRow("in the quick access bar")
            << file + section("quickaccessbar", button("x")) + tabs(button("x"), plain);
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
                        host.pressIn(place);
                        QVERIFY2(host.commands().isEmpty(), qPrintable(place->objectName()));
                        QCOMPARE(host.hostCalls, hasShortcut ? 2 : 0);
                    }
                }
                QCOMPARE(host.action("x")->shortcut(), key);
            }
        }
    }

    void shouldNotTriggerByAKeyInAnOpenMenu()
    {
        KeyHost host(fileMenu(item("x", withKey)) + tabs(button("x"), plain));
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

    void shouldKeepTheKeyOfARowMenuWorking()
    {
        const QString drop = menu("drop", item("x", withKey) + item("z"));
        for (const QString &entry : {item("y"), item("x", withKey)}) { // Alone and shared.
            for (const bool menusFirst : {false, true}) {
                KeyHost host(fileMenu(entry) + tabs(button("plain"), drop));
                if (menusFirst)
                    host.openMenus();
                host.openTab("other");
                host.pressIn(host.field);
                QCOMPARE(host.commands(), (QStringList{"x", "x"}));
                host.openMenus();
                host.pressIn(host.field);
                QCOMPARE(host.commands(), (QStringList{"x", "x"}));
                host.openTab("row");
                host.pressIn(host.field);
                QCOMPARE(host.commands(), QStringList());
            }
        }
    }

    void shouldKeepTheKeyOfASearchOptionWorking()
    {
        KeyHost host(
            fileMenu(item("y"))
            + section("searchbar", button("s_next") + optionsButton("st_set", item("x", withKey))));
        const QSignalSpy triggers(host.action("x"), &QAction::triggered);
        host.pressIn(host.field);
        QCOMPARE(triggers.count(), 2);
        host.openMenus();
        host.pressIn(host.field);
        QCOMPARE(triggers.count(), 4);
    }

    void shouldPreferTheKeyOfTheMenuToTheRowsAndThatOfTheHostToBoth()
    {
        KeyHost host(fileMenu(item("x", withKey))
                     + tabs(menu("drop", item("x", "shortcut='F2'")), plain));
        host.openMenus();
        QCOMPARE(host.action("x")->shortcut(), key);
        host.pressIn(host.field);
        QCOMPARE(host.commands(), QStringList());
        KeyHost other(fileMenu(item("x", withKey)) + tabs(button("x"), plain));
        other.action("x")->setShortcut(key);
        other.openMenus();
        other.pressIn(other.field);
        QCOMPARE(other.commands(), (QStringList{"x", "x"}));
    }
};

QTEST_MAIN(AccessTest)
#include "tst_access.moc"
