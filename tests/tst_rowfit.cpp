// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/EventCounter.h"
#include "tests/support/FittingHost.h"
#include "toolbar/widgets/RowFit.h"

#include <QApplication>
#include <QToolTip>

using namespace Describe;

namespace {

/** Forms as letters: F, B or M, "-" for what is absent, "|" and "." for a separator. */
QString formsOf(RowPlan plan, int available)
{
    plan.fit(available);
    QString forms;
    for (const RowPlan::Item &item : plan.items) {
        const char letters[] = {'-', 'F', 'B', 'M'};
        const char letter = letters[static_cast<int>(item.form)];
        forms += item.isSeparator ? (letter == '-' ? '.' : '|') : letter;
    }
    return forms;
}

} // namespace

class TestRowFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveWayInTheOrderOfTheNumbers_data();
    void shouldGiveWayInTheOrderOfTheNumbers();
    void shouldFollowFromTheWidthAlone_data() { addSkins(); }
    void shouldFollowFromTheWidthAlone();
    void shouldHoldWhatHasMovedInOrder();
    void shouldLetTheHostReachWhatHasMoved();
    void shouldShowNoHiddenControlAnywhere();
    void shouldFollowChanges_data();
    void shouldFollowChanges();
    void shouldPassTheFocusOn();
    void shouldOpenByKeys_data();
    void shouldOpenByKeys();
    void shouldShowTheTextAsToolTip();
    void shouldBeMirrored();
    void shouldLeaveOtherRowsAlone();
    void shouldLetTheHostDeleteItInAHandler();
};

void TestRowFit::shouldGiveWayInTheOrderOfTheNumbers_data()
{
    QTest::addColumn<int>("available");
    QTest::addColumn<QString>("forms");
    QTest::newRow("room for all") << 237 << "F|FFF-";
    QTest::newRow("the last of a number first") << 236 << "F|FBF-";
    QTest::newRow("then the others") << 206 << "F|BBF-";
    QTest::newRow("then the next number") << 176 << "F|BBB-";
    QTest::newRow("the menu needs room itself") << 146 << "F|BMB-";
    QTest::newRow("a number moves before the next") << 127 << "F|MMB-";
    QTest::newRow("no separator beside nothing") << 94 << "F.MMM-";
    QTest::newRow("no room for more than stays") << 1 << "F.MMM-";
}

void TestRowFit::shouldGiveWayInTheOrderOfTheNumbers()
{
    QFETCH(int, available);
    RowPlan plan;
    plan.spacing = 2;
    plan.moreWidth = 10;
    plan.around = 4;
    plan.items.resize(6);
    for (RowPlan::Item &item : plan.items) {
        item.fullWidth = 55;
        item.bareWidth = 25;
    }
    plan.items[1].isSeparator = true;
    plan.items[1].fullWidth = 5;
    plan.items[2].order = plan.items[3].order = 1;
    plan.items[4].order = 5;
    plan.items[5].order = 1;
    plan.items[5].form = RowPlan::Form::Absent;
    QTEST(formsOf(plan, available), "forms");
}

void TestRowFit::shouldFollowFromTheWidthAlone()
{
    const SkinChoice skin;
    FittingHost host;
    EventCounter layouts(host.bar(), {QEvent::LayoutRequest, QEvent::Resize});
    QMap<int, QList<int>> known;
    constexpr int most = 2000;
    for (int step = 1; step < 2 * most; ++step) {
        const int width = step <= most ? step : 2 * most - step;
        layouts.sinceLastAsked();
        host.setWidth(width);
        QVERIFY2(layouts.count() <= 4, qPrintable(QString::number(layouts.count())));
        const QList<int> shown = host.shownWidths();
        if (step > most)
            QCOMPARE(shown, known.value(width));
        known.insert(width, shown);
        QVERIFY2(!host.isTooWide() || host.moved().contains("late"),
                 qPrintable(QString::number(width)));
    }
    host.setWidth(most);
    QVERIFY(host.moved().isEmpty());
    QVERIFY(!host.more()->isVisible());
}

void TestRowFit::shouldHoldWhatHasMovedInOrder()
{
    FittingHost host;
    host.setWidth(everythingMoves);
    QVERIFY(host.more()->isVisible());
    QCOMPARE(host.moved(),
             QStringList({"first", "other", "|", "choice_two >", "own_command", "own_command >",
                          "group_one", "group_two", "group_menu >", "|", "late"}));
    QCOMPARE(host.menuOfMoved()->actions().first(), host.action("first"));
    const QList<QAction *> places = host.bar()->actions();
    const auto isShownSeparator = [](const QAction *action) {
        return action->isSeparator() && action->isVisible();
    };
    QCOMPARE(std::count_if(places.begin(), places.end(), isShownSeparator), 1);

    QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
    host.menuOfMoved()->popup(QPoint(10, 10));
    QTRY_VERIFY(host.menuOfMoved()->isVisible());
    const QAction *late = host.menuOfMoved()->actions().last();
    QTest::mouseClick(host.menuOfMoved(), Qt::LeftButton, {},
                      host.menuOfMoved()->actionGeometry(const_cast<QAction *>(late)).center());
    QCOMPARE(TestHost::texts(active), QStringList("late"));
}

void TestRowFit::shouldLetTheHostReachWhatHasMoved()
{
    FittingHost host;
    host.setWidth(everythingMoves);
    host.setChecked("first", true);
    host.setUsable("other", false);
    host.setUsable("drop", false);
    QAction *other = host.action("other");
    QVERIFY(host.facade().GetControlCheckedState("first"));
    QVERIFY(!other->isEnabled());
    QCOMPARE(other->toolTip(), QString("not now"));
    Q_EMIT host.menuOfMoved()->aboutToShow();
    QVERIFY(!host.menuOfMoved()->actions().at(3)->isEnabled());
    for (const char *name : {"first", "drop", "group_one", "group_menu"})
        QCOMPARE(host.facade().GetControlGeometry(name), host.screenRect(host.more()));

    host.setWidth(everythingFits);
    const QToolButton *button = host.buttonOf("first");
    QCOMPARE(host.facade().GetControlGeometry("first"), host.screenRect(button));
    QVERIFY(button->isChecked());
    QVERIFY(button->isEnabled());
    QVERIFY(!host.buttonOf("other")->isEnabled());
    QVERIFY(!host.buttonOf("drop")->isEnabled());
}

void TestRowFit::shouldShowNoHiddenControlAnywhere()
{
    FittingHost host;
    for (const int width : {everythingMoves, everythingFits}) {
        host.setWidth(width);
        for (const char *name : {"first", "drop", "group_one"})
            host.setVisible(name, false);
        QCoreApplication::sendPostedEvents();
        QVERIFY(!host.moved().contains("first"));
        QVERIFY(!host.moved().contains("choice_two >"));
        QVERIFY(!host.moved().contains("group_one"));
        QVERIFY(!host.buttonOf("first")->isVisible());
        QVERIFY(!host.buttonOf("drop")->isVisible());
        for (const char *name : {"first", "drop", "group_one"})
            host.setVisible(name, true);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(host.moved().contains("first"), width == everythingMoves);
        QCOMPARE(host.moved().contains("choice_two >"), width == everythingMoves);
        QCOMPARE(host.buttonOf("first")->isVisible(), width == everythingFits);
        QCOMPARE(host.buttonOf("drop")->isVisible(), width == everythingFits);
    }
}

struct Change
{
    const char *name;
    void (*make)(FittingHost &host);
};

static const Change changes[] = {
    {"scale", [](FittingHost &host) { host.facade().DoSetScaleSlot(1.5); }},
    {"text",
     [](FittingHost &host) {
         QString name = "late";
         host.facade().DoSetControlTextSlot(name, "much longer");
     }},
    {"icon",
     [](FittingHost &host) {
         QString name = "late";
         host.facade().DoSetControlIconSlot(name, QIcon());
     }},
    {"hidden", [](FittingHost &host) { host.setVisible("stays", false); }},
    {"touch",
     [](FittingHost &host) {
         host.facade().DoSetSkinStyleSlot({{"touchmode", "true"}});
     }},
    {"scheme",
     [](FittingHost &host) {
         host.facade().DoSetSkinStyleSlot({{"scheme", "dark"}});
     }},
    {"direction", [](FittingHost &host) { host.window().setLayoutDirection(Qt::RightToLeft); }},
};

void TestRowFit::shouldFollowChanges_data()
{
    addRows(changes);
}

/** Whatever changes in a row that is open fits as if it had been so from the start. */
void TestRowFit::shouldFollowChanges()
{
    for (const int style : {marodi, lum}) {
        const SkinChoice skin(style);
        for (int width = 150; width < 900; width += 150) {
            FittingHost changed;
            changed.setWidth(width);
            rowOf(changes).make(changed);
            QTest::qWait(1);
            const QList<int> shown = changed.shownWidths();
            QVERIFY(!changed.isTooWide() || changed.moved().contains("late"));
            changed.setWidth(everythingFits);
            changed.setWidth(width);
            QCOMPARE(shown, changed.shownWidths());
        }
    }
}

void TestRowFit::shouldPassTheFocusOn()
{
    FittingHost host;
    host.setWidth(everythingFits);
    QToolButton *button = host.buttonOf("first");
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(button->hasFocus());
    host.setWidth(everythingMoves);
    QVERIFY(host.more()->hasFocus());
    QVERIFY(host.more()->isVisible());
    QVERIFY(host.more()->focusPolicy() & Qt::TabFocus);
    host.setWidth(everythingFits);
    QVERIFY(host.bar()->isAncestorOf(QApplication::focusWidget()));
    QVERIFY(QApplication::focusWidget()->isVisible());
}

void TestRowFit::shouldOpenByKeys_data()
{
    QTest::addColumn<int>("key");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down})
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << static_cast<int>(key);
}

void TestRowFit::shouldOpenByKeys()
{
    QFETCH(int, key);
    FittingHost host;
    host.setWidth(everythingMoves);
    QVERIFY(!host.more()->accessibleName().isEmpty());
    host.more()->setFocus(Qt::TabFocusReason);
    bool wasOpened = false;
    QTimer::singleShot(0, host.menuOfMoved(), [&host, &wasOpened] {
        wasOpened = host.menuOfMoved()->isVisible();
        host.menuOfMoved()->close();
    });
    QTest::keyClick(host.more(), static_cast<Qt::Key>(key));
    QVERIFY(wasOpened);
}

void TestRowFit::shouldShowTheTextAsToolTip()
{
    const QString silent = "<menu name='silent' index='1' %1>" + item("face") + "</menu>";
    FittingHost host(button("plain", shrink(1)) + silent.arg(shrink(1)) + field("number"));
    for (const char *name : {"plain", "silent"}) {
        QToolButton *button = host.buttonOf(name);
        for (int width = everythingFits; button->toolButtonStyle() != Qt::ToolButtonIconOnly;)
            host.setWidth(--width);
        QHelpEvent event(QEvent::ToolTip, QPoint(), button->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(button, &event);
        QCOMPARE(QToolTip::text(), button->text().trimmed());
        QVERIFY(!QToolTip::text().isEmpty());
    }
}

void TestRowFit::shouldBeMirrored()
{
    FittingHost host;
    host.window().setLayoutDirection(Qt::RightToLeft);
    host.setWidth(everythingMoves);
    const QWidgetList controls = host.bar()->findChildren<QWidget *>();
    for (const QWidget *control : controls) {
        if (control->isVisible() && control->parentWidget() == host.bar())
            QVERIFY(control->x() >= host.more()->x());
    }
}

void TestRowFit::shouldLeaveOtherRowsAlone()
{
    FittingHost host(button("one") + menu("two", item("entry")) + group("three", button("four")));
    host.setWidth(everythingMoves);
    QVERIFY(!host.more());
    QVERIFY(!RowFit::of(host.bar()));
    QVERIFY(host.bar()->actions().contains(host.action("one")));
    QVERIFY(host.bar()->actions().contains(host.action("two")));
    QVERIFY(host.isTooWide());
}

void TestRowFit::shouldLetTheHostDeleteItInAHandler()
{
    TestHost host = TestHost::enabled(row(shrinkingRow()));
    host.window().layout()->setSizeConstraint(QLayout::SetNoConstraint);
    host.window().resize(everythingMoves, 200);
    auto *more = host.find<QToolButton>("row_more");
    QTRY_VERIFY(more->isVisible());
    QObject::connect(&host.facade(), &MRToolBar::DoActive, [&host] { host.deleteWindow(); });
    QTimer::singleShot(0, more->menu(), [more] {
        QTest::keyClick(more->menu(), Qt::Key_Down);
        QTest::keyClick(more->menu(), Qt::Key_Return);
    });
    more->showMenu();
    QVERIFY(!QApplication::activePopupWidget());
}

QTEST_MAIN(TestRowFit)
#include "tst_rowfit.moc"
