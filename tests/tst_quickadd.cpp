// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/Pictures.h"
#include "tests/support/Pointer.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "toolbar/state/KeptState.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

using namespace Describe;

namespace {

const QString addText = QStringLiteral("添加到快速访问工具栏");
const QString removeText = QStringLiteral("从快速访问工具栏移除");

QString quickAccess(const QString &quickAdd = "quickadd='true'")
{
    return section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                         + button("qbar_f_part_of", "checkable='true'")
                                         + button("qt_set", quickAdd));
}

/** Two rows of every kind of control, and quick access to which commands can be added. */
QString described(const QString &quickAdd = "quickadd='true'")
{
    const QString icon = "icon='icon24/HandTool.svg' ";
    const QString controls =
        button("plain", icon) + button("check", icon + "checkable='true'") + button("f_open", icon)
        + button("part", "tooltip='Part;of a name'") + group("g", button("grouped", icon))
        + menu("split", item("s_a") + item("s_b"), "checkable='true' switchable='true' index='2'")
        + menu("drop", item("d_a")) + label("label", "Label") + field("field");
    return quickAccess(quickAdd)
           + section("tabbar", tab("first", controls, "checked='true'")
                                   + tab("second", button("later", "checkable='true' group='g'")
                                                       + button("last", "checkable='true' "
                                                                        "group='g'")));
}

/** A host that has commands of the second row on its bar, which has not been opened. */
TestHost withLater()
{
    return TestHost::enabled(described(), {{"toolbarstate", "mrtoolbar/1;added=later,last"}});
}

QStringList addedNames(TestHost &host)
{
    const auto state = KeptState::fromText(host.facade().GetToolBarState());
    return state && state->added ? *state->added : QStringList();
}

QToolBar *bar(const TestHost &host)
{
    return host.find<QToolBar>("toolbar_quickaccessbar");
}

QMenu *customiseMenu(const TestHost &host)
{
    return host.find<QPushButton>("qt_set")->menu();
}

/** The button on the bar; null if there is none. */
QToolButton *buttonOf(const TestHost &host, const QString &name)
{
    return qobject_cast<QToolButton *>(buttonOn(bar(host), name));
}

/** Its action. */
QAction *onBar(const TestHost &host, const QString &name)
{
    const QToolButton *button = buttonOf(host, name);
    return button ? button->defaultAction() : nullptr;
}

/** The control of a row. */
QWidget *control(const TestHost &host, const QString &name)
{
    const QList<MRMainToolBar *> rows = host.toolBar()->findChildren<MRMainToolBar *>();
    for (const MRMainToolBar *row : rows) {
        if (QWidget *button = buttonOn(row, name))
            return button;
    }
    return host.find<QWidget>(name);
}

/** The text of what the context menu of the widget offers, which is done; empty without a menu. */
QString takeOffer(QWidget *widget, const QPoint &place)
{
    const QWidget *before = QApplication::activePopupWidget();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
    if (QApplication::activePopupWidget() == before)
        return QString();
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu || menu->actions().size() != 1)
        return QString();
    const QString text = menu->actions().constFirst()->text();
    clickEntry(menu, menu->actions().constFirst());
    return text;
}

QString takeOffer(const TestHost &host, const QString &name)
{
    QWidget *widget = control(host, name);
    return takeOffer(widget, widget->rect().center());
}

void removeByEntry(const TestHost &host, const QString &name)
{
    customiseMenu(host)->popup(QPoint(100, 300));
    clickEntries(customiseMenu(host), {name});
}

/** The button on its ground, without the pointer. */
QImage pictureOf(TestHost &host, const QString &name)
{
    movePointerAway();
    QCoreApplication::processEvents();
    const QToolButton *button = buttonOf(host, name);
    const QPoint place = button->mapTo(&host.window(), QPoint());
    return host.window().grab(QRect(place, button->size())).toImage();
}

/** What the context menu of a control offers; no command without an offer. */
const struct
{
    const char *name;
    const char *command = nullptr;
} offers[] = {{"plain", "plain"}, {"grouped", "grouped"}, {"split", "s_b"}, {"drop"}, {"label"},
              {"first"}};

using Act = void (*)(TestHost &);
const struct
{
    const char *name;
    void (MRToolBar::*signal)();
    Act act;
} ends[] = {
    {"adding", &MRToolBar::DoStateChanged, [](TestHost &host) { takeOffer(host, "plain"); }},
    {"removing", &MRToolBar::DoStateChanged,
     [](TestHost &host) { removeByEntry(host, "qbar_later"); }},
    {"the request before the command", &MRToolBar::DoRequestAuthority,
     [](TestHost &host) { onBar(host, "qbar_later")->trigger(); }},
    {"the command", nullptr, [](TestHost &host) { onBar(host, "qbar_later")->trigger(); }},
};

} // namespace

class tst_quickadd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOfferTheCommandOfAButton_data() { addRows(offers); }
    void shouldOfferTheCommandOfAButton()
    {
        TestHost host = TestHost::enabled(described());
        const QSignalSpy changes(&host.facade(), &MRToolBar::DoStateChanged);
        if (!rowOf(offers).command) {
            QCOMPARE(takeOffer(host, rowOf(offers).name), QString());
            return;
        }
        QCOMPARE(takeOffer(host, rowOf(offers).name), addText);
        QCOMPARE(changes.size(), 1);
        const QString command = rowOf(offers).command;
        QCOMPARE(addedNames(host), QStringList{command});
        const QString quickName = "qbar_" + command;
        QCOMPARE(bar(host)->actions().constLast(), onBar(host, quickName));
        QCOMPARE(onBar(host, quickName)->toolTip(), command);
        const QAction *entry = customiseMenu(host)->actions().constLast();
        QVERIFY(entry->objectName() == quickName && entry->isChecked() && entry->text() == command);
        const QSignalSpy commands(&host.facade(), &MRToolBar::DoActive);
        QTest::mouseClick(buttonOf(host, quickName), Qt::LeftButton);
        QCOMPARE(TestHost::texts(commands), QStringList{command});
    }

    void shouldOfferNothingUnasked()
    {
        TestHost host = TestHost::enabled(described({}));
        QCOMPARE(takeOffer(host, "plain"), QString());
    }

    void shouldOfferTheMenuToTheKeyboard()
    {
        TestHost host = TestHost::enabled(described());
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(control(host, "plain"), &event);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        // The new button comes between those that there were and the one that customises the bar.
        QVERIFY(buttonOf(host, "qbar_plain"));
        QCOMPARE(host.find<QPushButton>("qt_set")->previousInFocusChain(),
                 buttonOf(host, "qbar_plain"));
    }

    void shouldOfferWhatARowHasMoved()
    {
        QString controls;
        for (int i = 0; i < 12; ++i)
            controls += button("command" + QString::number(i), "shrink='1'");
        TestHost host = TestHost::enabled(quickAccess() + row(controls), {{"keytips", "true"}});
        host.window().resize(300, 300);
        const auto *more = host.find<QToolButton>("row_more");
        QTRY_VERIFY(more->isVisible());
        more->menu()->popup(QPoint(100, 300));
        QAction *entry = more->menu()->actions().constLast();
        QCOMPARE(takeOffer(more->menu(), more->menu()->actionGeometry(entry).center()), addText);
        more->menu()->close();
        // Both have letters as the others have.
        const auto spoken = [&host](Qt::Key key) {
            QTest::keyClick(host.window().windowHandle(), key);
            return QApplication::focusWidget()->accessibleName();
        };
        QVERIFY(QTest::qWaitForWindowActive(&host.window()));
        QVERIFY(spoken(Qt::Key_Alt).contains("R row"));
        QVERIFY(spoken(Qt::Key_R).contains(more->accessibleName()));
        host.window().resize(900, 300);
        QTRY_VERIFY(buttonOf(host, "qbar_" + entry->objectName())->isVisible());
        QVERIFY(spoken(Qt::Key_Alt).contains(entry->objectName()));
    }

    void shouldLeaveNothingBehindWhenRemoved()
    {
        for (const bool isByEntry : {false, true}) {
            TestHost host = TestHost::enabled(described());
            const auto count = [&host] {
                runDeferredDeletes();
                return host.window().findChildren<QAction *>().size()
                       + host.window().findChildren<QWidget *>().size();
            };
            const QString before = host.facade().GetToolBarState();
            const auto objects = count();
            takeOffer(host, "plain");
            QVERIFY(count() > objects);
            if (isByEntry)
                removeByEntry(host, "qbar_plain");
            else
                QCOMPARE(takeOffer(host, "plain"), removeText);
            QCOMPARE(count(), objects);
            QCOMPARE(host.facade().GetToolBarState(), before);
            host.setUsable("plain", false);
            host.setSkin({{"scheme", "dark"}, {"tooltipwords", "true"}});
        }
    }

    void shouldShowAndHideADescribedButton()
    {
        TestHost host = TestHost::enabled(described());
        QCOMPARE(takeOffer(host, "f_open"), removeText);
        QVERIFY(!onBar(host, "qbar_f_open")->isVisible());
        QCOMPARE(takeOffer(host, "f_open"), addText);
        QVERIFY(onBar(host, "qbar_f_open")->isVisible());
        QVERIFY(addedNames(host).isEmpty());
        // What is added is not found by the rules for described buttons.
        takeOffer(host, "part");
        QCOMPARE(host.facade().GetQuickAccessButtonList(), QString("open;part_of;"));
        host.setVisible("toolbar_quickaccessbar/par", false);
        QVERIFY(!onBar(host, "qbar_f_part_of")->isVisible());
        QVERIFY(onBar(host, "qbar_part")->isVisible());
    }

    void shouldBeAsTheCommandIs()
    {
        TestHost host = TestHost::enabled(described());
        host.setUsable("check", false);
        takeOffer(host, "check");
        const QAction *added = onBar(host, "qbar_check");
        QVERIFY(!added->isEnabled() && added->isVisible() && !added->isChecked());
        host.setUsable("check", true);
        host.setChecked("check", true);
        QVERIFY(added->isEnabled() && added->isChecked());
        QTest::mouseClick(buttonOf(host, "qbar_check"), Qt::LeftButton);
        QVERIFY(!added->isChecked() && !host.action("check")->isChecked());
        host.setVisible("check", false);
        QVERIFY(!added->isVisible());
    }

    void shouldBeAsTheHostSaysBeforeTheRowIsMade()
    {
        TestHost host = withLater();
        const QAction *added = onBar(host, "qbar_later");
        host.setUsable("later", false);
        host.setChecked("later", true);
        QVERIFY(!added->isEnabled() && added->isChecked());
        host.setChecked("last", true); // Of the same group.
        QVERIFY(!added->isChecked() && onBar(host, "qbar_last")->isChecked());
        host.facade().DoResetToolbarSlot();
        QVERIFY(!added->isEnabled() && !onBar(host, "qbar_last")->isChecked());
        host.click("second");
        QVERIFY(added->isEnabled()); // As the row's button begins.
    }

    void shouldMakeTheRowBeforeItActs()
    {
        for (const bool isUsable : {true, false}) {
            TestHost host = withLater();
            QVERIFY(!host.action("later"));
            QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                             [&] { host.setUsable("later", isUsable); });
            const QSignalSpy commands(&host.facade(), &MRToolBar::DoActive);
            QTest::mouseClick(buttonOf(host, "qbar_later"), Qt::LeftButton);
            QVERIFY(host.action("later"));
            QCOMPARE(TestHost::texts(commands), isUsable ? QStringList{"later"} : QStringList());
            QCOMPARE(onBar(host, "qbar_later")->isChecked(), isUsable);
            QCOMPARE(onBar(host, "qbar_later")->isEnabled(), isUsable);
        }
    }

    void shouldComeBackInTheNextRun()
    {
        TestHost host = withLater();
        takeOffer(host, "plain");
        TestHost next =
            TestHost::enabled(described(), {{"toolbarstate", host.facade().GetToolBarState()}});
        QCOMPARE(addedNames(next), (QStringList{"later", "last", "plain"}));
        QVERIFY(onBar(next, "qbar_plain")->isEnabled());

        // What no row has, or the bar has already, does not come back.
        const QSignalSpy changes(&next.facade(), &MRToolBar::DoStateChanged);
        next.setSkin({{"toolbarstate", "mrtoolbar/1;added=plain,f_open,nothing,drop,qt_set"}});
        QCOMPARE(addedNames(next), QStringList{"plain"});
        QVERIFY(!onBar(next, "qbar_later"));
        QCOMPARE(changes.size(), 0);
    }

    void shouldTakeTextsAndIconsByName()
    {
        TestHost host = TestHost::enabled(described());
        takeOffer(host, "part");
        const QAction *added = onBar(host, "qbar_part");
        host.toolBar()->SetControlText("part", "Command");
        QCOMPARE(added->toolTip(), QString("Command"));
        host.toolBar()->SetControlText("qbar_part", "Own && good");
        QCOMPARE(added->toolTip(), QString("Own & good"));
        host.toolBar()->SetControlToolTip("qbar_part", "Tip");
        QCOMPARE(added->toolTip(), QString("Tip"));
        host.toolBar()->SetControlToolTip("qbar_part", "");
        host.toolBar()->SetControlText("qbar_part", "");
        QCOMPARE(added->toolTip(), QString("Command"));

        QPixmap red(16, 16);
        red.fill(Qt::red);
        host.toolBar()->SetControlIcon("qbar_part", QIcon(red));
        QCOMPARE(added->icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
    }

    void shouldBeSeenOnTheTopLine_data() { addSkins(); }
    void shouldBeSeenOnTheTopLine()
    {
        const SkinChoice skin;
        for (const char *scheme : {"light", "dark", "contrast"}) {
            TestHost host = TestHost::enabled(described(), {{"scheme", scheme}});
            for (const char *name : {"plain", "part", "check"}) {
                takeOffer(host, name);
                const QImage picture = pictureOf(host, QString("qbar_") + name);
                const double best = bestContrast(picture, picture.pixelColor(1, 1));
                QVERIFY2(best >= 3.0, qPrintable(scheme + QString::number(best)));
            }
            const QColor before = pictureOf(host, "qbar_check").pixelColor(2, 2);
            host.setChecked("check", true);
            QVERIFY(pictureOf(host, "qbar_check").pixelColor(2, 2) != before);
        }
    }

    void shouldLetTheHostDeleteTheWindowInItsAnswer_data() { addRows(ends); }
    void shouldLetTheHostDeleteTheWindowInItsAnswer()
    {
        TestHost host = withLater();
        const auto end = [&host] { host.deleteWindow(); };
        if (rowOf(ends).signal)
            QObject::connect(&host.facade(), rowOf(ends).signal, &host.facade(), end);
        else
            QObject::connect(&host.facade(), &MRToolBar::DoActive, &host.facade(), end);
        rowOf(ends).act(host);
        runDeferredDeletes();
        QVERIFY(!host.facade().IsSupportByToolBar("plain"));
    }
};

QTEST_MAIN(tst_quickadd)
#include "tst_quickadd.moc"
