// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/QuickAdd.h"
#include "toolbar/state/KeptState.h"

#include <QWindow>

using namespace QuickAdd;

namespace {

QStringList addedNames(TestHost &host)
{
    const auto state = KeptState::fromText(host.facade().GetToolBarState());
    return state && state->added ? *state->added : QStringList();
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
    void shouldOfferWhatARowHasMoved();
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
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(control(host, "plain"), &event);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QVERIFY(onBar(host, "qbar_plain"));
    // The new button comes between those that there were and the one that customises the bar.
    QCOMPARE(host.find<QPushButton>("qt_set")->previousInFocusChain(),
             buttonOf(host, "qbar_plain"));
}

void tst_quickadd::shouldOfferWhatARowHasMoved()
{
    QString controls;
    for (int i = 0; i < 12; ++i)
        controls += Describe::button("command" + QString::number(i), "shrink='1'");
    using Describe::section;
    TestHost host =
        TestHost::enabled(section("quickaccessbar", Describe::button("qt_set", "quickadd='true'"))
                              + Describe::row(controls),
                          {{"keytips", "true"}});
    host.window().resize(300, 300);
    const auto *more = host.find<QToolButton>("row_more");
    QTRY_VERIFY(more->isVisible());
    more->menu()->popup(QPoint(100, 300));
    QAction *entry = more->menu()->actions().constLast();
    QCOMPARE(takeOffer(more->menu(), more->menu()->actionGeometry(entry).center()), addText);
    more->menu()->close();
    QVERIFY(buttonOf(host, "qbar_" + entry->objectName()));
    // By its letter it is used as the others are.
    host.window().resize(900, 300);
    QTRY_VERIFY(buttonOf(host, "qbar_" + entry->objectName())->isVisible());
    QTRY_VERIFY(host.window().isActiveWindow());
    QTest::keyClick(host.window().windowHandle(), Qt::Key_Alt);
    QVERIFY(QApplication::focusWidget()->accessibleName().contains(entry->objectName()));
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
