// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/state/KeptState.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>

using namespace Describe;

namespace {

const QString addText = QStringLiteral("添加到快速访问工具栏");
const QString removeText = QStringLiteral("从快速访问工具栏移除");

/** Two rows of every kind of control, and quick access to which commands can be added. */
QString described(const QString &quickAdd = "quickadd='true'")
{
    const QString icon = "icon='icon24/HandTool.svg' ";
    const QString controls =
        button("plain", icon) + button("check", icon + "checkable='true'") + button("f_open", icon)
        + button("part", "tooltip='Part;of a name'") + group("g", button("grouped", icon))
        + menu("split", item("s_a") + item("s_b"), "checkable='true' switchable='true' index='2'")
        + menu("drop", item("d_a")) + label("label", "Label") + field("field");
    return section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                         + button("qbar_f_part_of", "checkable='true'")
                                         + button("qt_set", quickAdd))
           + section("tabbar", tab("first", controls, "checked='true'")
                                   + tab("second", button("later", "checkable='true'")));
}

QToolBar *bar(const TestHost &host)
{
    return host.find<QToolBar>("toolbar_quickaccessbar");
}

QMenu *customiseMenu(const TestHost &host)
{
    return host.find<QPushButton>("qt_set")->menu();
}

/** The action of the button on the bar; null if there is none. */
QAction *onBar(const TestHost &host, const QString &name)
{
    const QList<QAction *> buttons = bar(host)->actions();
    for (QAction *action : buttons) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

QToolButton *buttonOf(const TestHost &host, const QString &name)
{
    return qobject_cast<QToolButton *>(bar(host)->widgetForAction(onBar(host, name)));
}

QWidget *control(const TestHost &host, const QString &name)
{
    QAction *action = host.action(name);
    const QList<MRMainToolBar *> rows = host.toolBar()->findChildren<MRMainToolBar *>();
    for (const MRMainToolBar *row : rows) {
        if (QWidget *button = action ? row->widgetForAction(action) : nullptr)
            return button;
    }
    return host.find<QWidget>(name);
}

void askForMenu(QWidget *widget, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
{
    const QPoint middle = widget->rect().center();
    QContextMenuEvent event(reason, middle, widget->mapToGlobal(middle));
    QApplication::sendEvent(widget, &event);
}

/** The text of what the context menu of the control offers, which is done; empty without a menu. */
QString takeOffer(const TestHost &host, const QString &name)
{
    askForMenu(control(host, name));
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu || menu->actions().size() != 1)
        return QString();
    const QString text = menu->actions().constFirst()->text();
    clickEntry(menu, menu->actions().constFirst());
    return text;
}

QStringList addedNames(TestHost &host)
{
    const auto state = KeptState::fromText(host.facade().GetToolBarState());
    return state && state->added ? *state->added : QStringList();
}

/** The button on its ground, without the pointer. */
QImage pictureOf(TestHost &host, const QString &name)
{
    QTest::mouseMove(&host.window(), QPoint(600, 500));
    QCoreApplication::processEvents();
    const QToolButton *button = buttonOf(host, name);
    const QPoint place = button->mapTo(&host.window(), QPoint());
    return host.window().grab(QRect(place, button->size())).toImage();
}

TestHost nextRun(TestHost &host)
{
    return TestHost::enabled(described(), {{"toolbarstate", host.facade().GetToolBarState()}});
}

/** A host that has the command of the second row on its bar, which has not been opened. */
TestHost withLater()
{
    return TestHost::enabled(described(), {{"toolbarstate", "mrtoolbar/1;added=later"}});
}

} // namespace

class tst_quickadd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAddTheCommandOfAButton_data();
    void shouldAddTheCommandOfAButton();
    void shouldOfferTheMenuToTheKeyboard();
    void shouldOfferNothingForWhatIsNoCommand_data();
    void shouldOfferNothingForWhatIsNoCommand();
    void shouldLeaveNothingBehindWhenRemoved_data();
    void shouldLeaveNothingBehindWhenRemoved();
    void shouldShowAndHideADescribedButton();

    void shouldBeAsTheCommandIs();
    void shouldBeAsTheHostSaysBeforeTheRowIsMade();
    void shouldMakeTheRowBeforeItActs_data();
    void shouldMakeTheRowBeforeItActs();
    void shouldComeBackInTheNextRun();
    void shouldKeepToItsWholeName();

    void shouldTakeTextsAndIconsByName();
    void shouldBeReadOnTheTopLine_data();
    void shouldBeReadOnTheTopLine();
    void shouldShowThatItIsChecked_data() { addSkins(); }
    void shouldShowThatItIsChecked();
    void shouldLetTheHostDeleteTheWindowInItsAnswer_data();
    void shouldLetTheHostDeleteTheWindowInItsAnswer();
};

void tst_quickadd::shouldAddTheCommandOfAButton_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("command");
    QTest::newRow("a row's") << "plain"
                             << "plain";
    QTest::newRow("a group's") << "grouped"
                               << "grouped";
    QTest::newRow("a drop button's entry") << "split"
                                           << "s_b";
}

void tst_quickadd::shouldAddTheCommandOfAButton()
{
    QFETCH(QString, name);
    QFETCH(QString, command);
    TestHost host = TestHost::enabled(described());
    QSignalSpy changes(&host.facade(), &MRToolBar::DoStateChanged);
    QCOMPARE(takeOffer(host, name), addText);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(addedNames(host), QStringList{command});

    const QString quickName = "qbar_" + command;
    QCOMPARE(bar(host)->actions().constLast(), onBar(host, quickName));
    QCOMPARE(onBar(host, quickName)->toolTip(), command);
    const QAction *entry = customiseMenu(host)->actions().constLast();
    QVERIFY(entry->objectName() == quickName && entry->isChecked() && entry->text() == command);
    QSignalSpy commands(&host.facade(), &MRToolBar::DoActive);
    QTest::mouseClick(buttonOf(host, quickName), Qt::LeftButton);
    QCOMPARE(TestHost::texts(commands), QStringList{command});
}

void tst_quickadd::shouldOfferTheMenuToTheKeyboard()
{
    TestHost host = TestHost::enabled(described());
    askForMenu(control(host, "plain"), QContextMenuEvent::Keyboard);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QVERIFY(onBar(host, "qbar_plain"));
    // The new button comes between those that there were and the one that customises the bar.
    QCOMPARE(host.find<QPushButton>("qt_set")->previousInFocusChain(),
             buttonOf(host, "qbar_plain"));
}

void tst_quickadd::shouldOfferNothingForWhatIsNoCommand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("quickAdd");
    for (const char *name : {"drop", "label", "first"})
        QTest::newRow(name) << name << "quickadd='true'";
    QTest::newRow("not asked for") << "plain"
                                   << "";
}

void tst_quickadd::shouldOfferNothingForWhatIsNoCommand()
{
    QFETCH(QString, name);
    QFETCH(QString, quickAdd);
    TestHost host = TestHost::enabled(described(quickAdd));
    QCOMPARE(takeOffer(host, name), QString());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_quickadd::shouldLeaveNothingBehindWhenRemoved_data()
{
    QTest::addColumn<bool>("isByEntry");
    QTest::newRow("by the context menu") << false;
    QTest::newRow("by its entry") << true;
}

void tst_quickadd::shouldLeaveNothingBehindWhenRemoved()
{
    QFETCH(bool, isByEntry);
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
    if (isByEntry) {
        customiseMenu(host)->popup(QPoint(100, 300));
        clickEntries(customiseMenu(host), {"qbar_plain"});
    } else {
        QCOMPARE(takeOffer(host, "plain"), removeText);
    }
    QCOMPARE(count(), objects);
    QCOMPARE(host.facade().GetToolBarState(), before);
    host.setUsable("plain", false);
    host.facade().DoSetSkinStyleSlot({{"scheme", "dark"}, {"tooltipwords", "true"}});
}

void tst_quickadd::shouldShowAndHideADescribedButton()
{
    TestHost host = TestHost::enabled(described());
    QCOMPARE(takeOffer(host, "f_open"), removeText);
    QVERIFY(!onBar(host, "qbar_f_open")->isVisible());
    QCOMPARE(takeOffer(host, "f_open"), addText);
    QVERIFY(onBar(host, "qbar_f_open")->isVisible());
    QCOMPARE(host.facade().GetQuickAccessButtonList(), QString("open;part_of;"));
    QVERIFY(addedNames(host).isEmpty());
}

void tst_quickadd::shouldBeAsTheCommandIs()
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

void tst_quickadd::shouldBeAsTheHostSaysBeforeTheRowIsMade()
{
    TestHost host = withLater();
    const QAction *added = onBar(host, "qbar_later");
    host.setUsable("later", false);
    host.setChecked("later", true);
    QVERIFY(!added->isEnabled() && added->isChecked());
    host.facade().DoResetToolbarSlot();
    QVERIFY(!added->isEnabled() && !added->isChecked());
    host.click("second");
    QVERIFY(added->isEnabled()); // As the row's button begins.
}

void tst_quickadd::shouldMakeTheRowBeforeItActs_data()
{
    QTest::addColumn<bool>("isUsable");
    QTest::newRow("usable") << true;
    QTest::newRow("not usable") << false;
}

void tst_quickadd::shouldMakeTheRowBeforeItActs()
{
    QFETCH(bool, isUsable);
    TestHost host = withLater();
    QVERIFY(!host.action("later"));
    QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                     [&] { host.setUsable("later", isUsable); });
    QSignalSpy commands(&host.facade(), &MRToolBar::DoActive);
    QTest::mouseClick(buttonOf(host, "qbar_later"), Qt::LeftButton);
    QVERIFY(host.action("later"));
    QCOMPARE(TestHost::texts(commands), isUsable ? QStringList{"later"} : QStringList());
    QCOMPARE(onBar(host, "qbar_later")->isChecked(), isUsable);
    QCOMPARE(onBar(host, "qbar_later")->isEnabled(), isUsable);
}

void tst_quickadd::shouldComeBackInTheNextRun()
{
    TestHost host = withLater();
    takeOffer(host, "plain");
    TestHost next = nextRun(host);
    QCOMPARE(addedNames(next), (QStringList{"later", "plain"}));
    QVERIFY(onBar(next, "qbar_plain")->isEnabled());

    // What no row has, or the bar has already, does not come back.
    QSignalSpy changes(&next.facade(), &MRToolBar::DoStateChanged);
    next.facade().DoSetSkinStyleSlot(
        {{"toolbarstate", "mrtoolbar/1;added=plain,f_open,nothing,drop,qt_set"}});
    QCOMPARE(addedNames(next), QStringList{"plain"});
    QVERIFY(!onBar(next, "qbar_later"));
    QCOMPARE(changes.size(), 0);
}

void tst_quickadd::shouldKeepToItsWholeName()
{
    TestHost host = TestHost::enabled(described());
    takeOffer(host, "part");
    const QString shown = host.facade().GetQuickAccessButtonList();
    QCOMPARE(shown, QString("open;part_of;"));
    host.setVisible("toolbar_quickaccessbar/par", false);
    QVERIFY(!onBar(host, "qbar_f_part_of")->isVisible());
    QVERIFY(onBar(host, "qbar_part")->isVisible());
}

void tst_quickadd::shouldTakeTextsAndIconsByName()
{
    TestHost host = TestHost::enabled(described());
    takeOffer(host, "part");
    const QAction *added = onBar(host, "qbar_part");
    const auto set = [&host](void (MRToolBar::*slot)(QString &, QString), QString name,
                             const QString &text) { (host.facade().*slot)(name, text); };
    set(&MRToolBar::DoSetControlTextSlot, "part", "Command");
    QCOMPARE(added->toolTip(), QString("Command"));
    set(&MRToolBar::DoSetControlTextSlot, "qbar_part", "Own && good");
    QCOMPARE(added->toolTip(), QString("Own & good"));
    set(&MRToolBar::DoSetControlToolTipSlot, "qbar_part", "Tip");
    QCOMPARE(added->toolTip(), QString("Tip"));
    set(&MRToolBar::DoSetControlToolTipSlot, "qbar_part", "");
    set(&MRToolBar::DoSetControlTextSlot, "qbar_part", "");
    QCOMPARE(added->toolTip(), QString("Command"));

    QPixmap red(16, 16);
    red.fill(Qt::red);
    QString name = "qbar_part";
    host.facade().DoSetControlIconSlot(name, QIcon(red));
    QCOMPARE(added->icon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

void tst_quickadd::shouldBeReadOnTheTopLine_data()
{
    QTest::addColumn<int>("skin");
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("name");
    for (const char *scheme : {"light", "dark", "contrast"}) {
        for (const char *name : {"plain", "part"}) {
            QTest::addRow("marodi %s %s", scheme, name) << marodi << scheme << name;
            QTest::addRow("lum %s %s", scheme, name) << lum << scheme << name;
        }
    }
}

void tst_quickadd::shouldBeReadOnTheTopLine()
{
    const SkinChoice skin;
    QFETCH(QString, scheme);
    QFETCH(QString, name);
    TestHost host = TestHost::enabled(described(), {{"scheme", scheme}});
    takeOffer(host, name);
    const QImage picture = pictureOf(host, "qbar_" + name);
    const QColor ground = picture.pixelColor(1, 1);
    double best = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            best = std::max(best, Contrast::ratio(picture.pixelColor(x, y), ground));
    }
    QVERIFY2(best >= 3.0, qPrintable(QString::number(best)));
}

void tst_quickadd::shouldShowThatItIsChecked()
{
    const SkinChoice skin;
    TestHost host = TestHost::enabled(described());
    takeOffer(host, "check");
    const QColor before = pictureOf(host, "qbar_check").pixelColor(2, 2);
    host.setChecked("check", true);
    QVERIFY(pictureOf(host, "qbar_check").pixelColor(2, 2) != before);
}

void tst_quickadd::shouldLetTheHostDeleteTheWindowInItsAnswer_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("to adding") << 0;
    QTest::newRow("to removing by the entry") << 1;
    QTest::newRow("to the request before the command") << 2;
    QTest::newRow("to the command") << 3;
}

void tst_quickadd::shouldLetTheHostDeleteTheWindowInItsAnswer()
{
    QFETCH(int, step);
    TestHost host = withLater();
    const auto signal = step < 2    ? &MRToolBar::DoStateChanged
                        : step == 2 ? &MRToolBar::DoRequestAuthority
                                    : nullptr;
    const auto end = [&host] { host.deleteWindow(); };
    if (signal)
        QObject::connect(&host.facade(), signal, &host.facade(), end);
    else
        QObject::connect(&host.facade(), &MRToolBar::DoActive, &host.facade(), end);
    if (step == 0)
        takeOffer(host, "plain");
    else if (step == 1) {
        customiseMenu(host)->popup(QPoint(100, 300));
        clickEntries(customiseMenu(host), {"qbar_later"});
    } else
        QTest::mouseClick(buttonOf(host, "qbar_later"), Qt::LeftButton);
    runDeferredDeletes();
    QVERIFY(!host.facade().IsSupportByToolBar("plain"));
}

QTEST_MAIN(tst_quickadd)
#include "tst_quickadd.moc"
