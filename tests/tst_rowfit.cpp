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

const struct
{
    const char *name;
    int available;
    const char *forms;
} plans[] = {
    {"room for all", 237, "F|FFF-"},
    {"the last of a number first", 236, "F|FBF-"},
    {"then the others", 206, "F|BBF-"},
    {"then the next number", 176, "F|BBB-"},
    {"the menu needs room itself", 146, "F|BMB-"},
    {"a number moves before the next", 127, "F|MMB-"},
    {"no separator beside nothing", 94, "F.MMM-"},
    {"no room for more than stays", 1, "F.MMM-"},
};

const struct
{
    const char *name;
    void (*make)(FittingHost &host);
} changes[] = {
    {"scale", [](FittingHost &host) { host.facade().DoSetScaleSlot(1.5); }},
    {"text", [](FittingHost &host) { host.toolBar()->SetControlText("late", "much longer"); }},
    {"icon", [](FittingHost &host) { host.toolBar()->SetControlIcon("late", QIcon()); }},
    {"hidden", [](FittingHost &host) { host.setVisible("stays", false); }},
    {"touch",
     [](FittingHost &host) {
         host.setSkin({{"touchmode", "true"}});
     }},
    {"scheme",
     [](FittingHost &host) {
         host.setSkin({{"scheme", "dark"}});
     }},
    {"direction", [](FittingHost &host) { host.window().setLayoutDirection(Qt::RightToLeft); }},
};

} // namespace

class TestRowFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveWayInTheOrderOfTheNumbers_data() { addRows(plans); }
    void shouldGiveWayInTheOrderOfTheNumbers()
    {
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
        plan.items[2].order = plan.items[3].order = plan.items[5].order = 1;
        plan.items[4].order = 5;
        plan.items[5].form = RowPlan::Form::Absent;
        QCOMPARE(formsOf(plan, rowOf(plans).available), QString(rowOf(plans).forms));
    }

    void shouldFollowFromTheWidthAlone_data() { addSkins(); }
    void shouldFollowFromTheWidthAlone()
    {
        const SkinChoice skin;
        FittingHost host;
        EventCounter layouts(host.bar(), {QEvent::LayoutRequest, QEvent::Resize});
        QMap<int, QList<int>> known;
        // Every width down, and some up again.
        for (int step = 1; step < 2 * everythingFits; step += step < everythingFits ? 1 : 7) {
            const int width = step <= everythingFits ? step : 2 * everythingFits - step;
            layouts.sinceLastAsked();
            host.setWidth(width);
            QVERIFY2(layouts.count() <= 4, qPrintable(QString::number(layouts.count())));
            const QList<int> shown = host.shownWidths();
            if (step > everythingFits)
                QCOMPARE(shown, known.value(width));
            known.insert(width, shown);
            QVERIFY2(!host.isTooWide() || host.moved().contains("late"),
                     qPrintable(QString::number(width)));
        }
        host.setWidth(everythingFits);
        QVERIFY(host.moved().isEmpty() && !host.more()->isVisible());
    }

    void shouldHoldWhatHasMovedInOrder()
    {
        FittingHost host;
        host.window().setLayoutDirection(Qt::RightToLeft);
        host.setWidth(everythingMoves);
        QVERIFY(host.more()->isVisible());
        QCOMPARE(host.moved(),
                 QStringList({"first", "other", "|", "choice_two >", "own_command", "own_command >",
                              "group_one", "group_two", "group_menu >", "|", "late"}));
        QCOMPARE(host.menuOfMoved()->actions().first(), host.action("first"));
        QCOMPARE(host.shownSeparators(), 1);
        for (const QWidget *control : host.bar()->findChildren<QWidget *>()) {
            if (control->isVisible() && control->parentWidget() == host.bar())
                QVERIFY(control->x() >= host.more()->x());
        }

        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.menuOfMoved()->popup(QPoint(10, 10));
        clickEntries(host.menuOfMoved(), {"late"});
        QCOMPARE(TestHost::texts(active), QStringList("late"));
    }

    void shouldLetTheHostReachWhatHasMoved()
    {
        FittingHost host;
        host.setWidth(everythingMoves);
        host.setChecked("first", true);
        host.setUsable("other", false);
        host.setUsable("drop", false);
        QVERIFY(host.facade().GetControlCheckedState("first"));
        QVERIFY(!host.action("other")->isEnabled());
        QCOMPARE(host.action("other")->toolTip(), QString("not now"));
        Q_EMIT host.menuOfMoved()->aboutToShow();
        QVERIFY(!host.menuOfMoved()->actions().at(3)->isEnabled());
        for (const char *name : {"first", "drop", "group_one", "group_menu"})
            QCOMPARE(host.facade().GetControlGeometry(name), host.screenRect(host.more()));

        host.setWidth(everythingFits);
        const QToolButton *button = host.buttonOf("first");
        QCOMPARE(host.facade().GetControlGeometry("first"), host.screenRect(button));
        QVERIFY(button->isChecked() && button->isEnabled());
        QVERIFY(!host.buttonOf("other")->isEnabled() && !host.buttonOf("drop")->isEnabled());
    }

    void shouldShowNoHiddenControlAnywhere()
    {
        FittingHost host;
        for (const int width : {everythingMoves, everythingFits}) {
            host.setWidth(width);
            for (const bool isShown : {false, true}) {
                for (const char *name : {"first", "drop", "group_one"})
                    host.setVisible(name, isShown);
                QCoreApplication::sendPostedEvents();
                const bool isInMenu = isShown && width == everythingMoves;
                for (const char *entry : {"first", "choice_two >", "group_one"})
                    QCOMPARE(host.moved().contains(entry), isInMenu);
                for (const char *name : {"first", "drop"})
                    QCOMPARE(host.buttonOf(name)->isVisible(), isShown && !isInMenu);
            }
        }
    }

    void shouldFollowChanges_data() { addRows(changes); }
    /** Whatever changes in a row that is open fits as if it had been so from the start. */
    void shouldFollowChanges()
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

    void shouldPassTheFocusOn()
    {
        QWidgetList focused;
        FittingHost host;
        host.setWidth(everythingFits);
        host.buttonOf("first")->setFocus(Qt::TabFocusReason);
        connect(qApp, &QApplication::focusChanged, &host.window(),
                [&](QWidget *, QWidget *now) { focused.append(now); });
        host.setWidth(everythingMoves);
        QCOMPARE(focused, QWidgetList{host.more()});
        QVERIFY(host.more()->isVisible() && host.more()->focusPolicy() & Qt::TabFocus);
        host.setWidth(everythingFits);
        QCOMPARE(focused.size(), 2);
        QVERIFY(host.bar()->isAncestorOf(focused.last()) && focused.last()->isVisible());
        QVERIFY(!host.more()->isVisible());
    }

    void shouldOpenByKeys()
    {
        FittingHost host;
        host.setWidth(everythingMoves);
        QVERIFY(!host.more()->accessibleName().isEmpty());
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
            host.more()->setFocus(Qt::TabFocusReason);
            const QMenu *opened = nullptr;
            whenMenuPops([&opened](QMenu *menu) { opened = menu; });
            QTest::keyClick(host.more(), key);
            QTRY_COMPARE(opened, host.menuOfMoved());
        }
    }

    void shouldShowTheTextAsToolTip()
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

    void shouldLeaveOtherRowsAlone()
    {
        FittingHost host(button("one") + menu("two", item("entry"))
                         + group("three", button("four")));
        host.setWidth(everythingMoves);
        QVERIFY(!host.more() && !RowFit::of(host.bar()));
        QVERIFY(host.bar()->actions().contains(host.action("one")));
        QVERIFY(host.isTooWide());
    }

    void shouldLetTheHostDeleteItInAHandler()
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
};

QTEST_MAIN(TestRowFit)
#include "tst_rowfit.moc"
