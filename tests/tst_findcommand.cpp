// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Finder.h"
#include "tests/support/Rows.h"
#include "toolbar/find/CommandFinder.h"
#include "toolbar/find/Match.h"
#include "toolbar/widgets/ButtonRing.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QApplication>
#include <QMenu>
#include <QStackedWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

using namespace Finder;

namespace {

const struct
{
    const char *name;
    const char *typed;
    const char *text;
    Fit fit;
} fits[] = {
    {"whole text", "zoom", "Zoom", Fit::Word},
    {"whole word", "zoom", "v_zoom in", Fit::Word},
    {"a later word", "in", "inner, in", Fit::Word},
    {"accents", "resume", "Résumé", Fit::Word},
    {"prefix", "zo", "v_zoom", Fit::Prefix},
    {"prefix of ideographs", "缩", "缩放", Fit::Prefix},
    {"substring", "oo", "zoom", Fit::Substring},
    {"subsequence", "zm", "zoom", Fit::Subsequence},
    {"any order", "mzo", "zoom", Fit::Letters},
    {"a letter too often", "zzm", "zoom", Fit::None},
    {"another letter", "zoomx", "zoom", Fit::None},
    {"nothing", "", "zoom", Fit::None},
};

const struct
{
    const char *name;
    const char *typed;
    const char *first;
    bool isBySpelling = false;
} names[] = {
    {"text", "缩放", "缩放"},
    {"initials", "sf", "缩放", true},
    {"spelling", "suofang", "缩放", true},
    {"tooltip", "enlarge", "缩放"},
    {"name", "v_scale", "缩放"},
    {"keyword", "lupe", "缩放"},
    {"words in any order", "lupe scale", "缩放"},
    {"text before name", "scale", "Scale"},
    {"mnemonic", "open", "Open"},
};

/** What is typed, what is reported or outlined, and the button that this is at. */
const struct
{
    const char *name;
    const char *reported;
    const char *outlined;
} commands[] = {
    {"one", "one", "one"},
    {"three", "three", "three"},
    {"four", "four", "four"},
    {"d_two", "d_two", "d_drop"},
    {"f_recent", "f_recent", "file"},
    {"h_help", "h_help", "h_help"},
    {"qbar_quick", "quick", "qbar_quick"},
};

} // namespace

class FindCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellHowWellWhatIsTypedFits_data() { addRows(fits); }
    void shouldTellHowWellWhatIsTypedFits()
    {
        const auto &row = rowOf(fits);
        QCOMPARE(matchOf(SearchText(row.typed), SearchText(row.text)).fit, row.fit);
    }

    void shouldFindByEverythingThatACommandIsCalled_data() { addRows(names); }
    void shouldFindByEverythingThatACommandIsCalled()
    {
#ifndef MRTOOLBAR_HAS_SPELLING
        if (rowOf(names).isBySpelling)
            QSKIP("Built without the library that spells");
#endif
        TestHost host = TestHost::enabled(row(
            "<button name='v_scale' text='缩放' tooltip='Enlarge;the page' keywords='lupe glass'/>"
            "<button name='other' text='Scale'/><button name='x' text='&amp;Open(&amp;O)'/>"));
        open(host);
        type(host, rowOf(names).typed);
        QTRY_COMPARE(found(host).value(0), QString(rowOf(names).first));
    }

    void shouldListACommandOnceWhereverItStands()
    {
        TestHost host = usable(several());
        open(host);
        QCOMPARE(found(host), QStringList({"three", "f_recent", "qbar_quick", "h_help", "one",
                                           "two", "d_one", "d_two", "four"}));
        type(host, "three");
        QCOMPARE(model(host)->line(0).where, QString("other"));
        QCOMPARE(model(host)->line(0).key, QString("Ctrl+D"));
        field(host)->selectAll();
        type(host, "d_two");
        QCOMPARE(model(host)->line(0).where, QString("row › d_drop › d_more"));

        for (const char *name : {"two", "d_drop", "other", "h_help"})
            host.setVisible(name, false);
        QTest::keyClick(field(host), Qt::Key_Escape);
        open(host);
        // The menu still leads to the command on the hidden tab.
        QCOMPARE(found(host), QStringList({"menu_three", "f_recent", "qbar_quick", "one"}));
    }

    void shouldTriggerTheCommandAsAClickWould_data()
    {
        addRows(commands);
    }
    void shouldTriggerTheCommandAsAClickWould()
    {
        TestHost host = usable(several());
        answer(host);
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        run(host, rowOf(commands).name);
        QTRY_COMPARE(TestHost::texts(active), QStringList{rowOf(commands).reported});
        QVERIFY(!field(host));
    }

    void shouldMakeARowOnlyWhenItIsNeeded()
    {
        TestHost host = usable(several());
        answer(host);
        const QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        const auto *other = host.find<MRMainToolBar>("other");
        open(host);
        type(host, "three");
        QVERIFY(!other->isFilled());
        QTest::keyClick(field(host), Qt::Key_Return);
        QTRY_VERIFY(other->isFilled());
        QCOMPARE(asked.size(), 1);
        QVERIFY(!other->isVisible());
        run(host, "d_one");
        QTRY_COMPARE(host.find<MRDropButton>("d_drop")->GetCurrentAction(), host.action("d_one"));
    }

    void shouldNeitherRunNorLeaveADisabledCommand()
    {
        for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier}) {
            TestHost host = usable(several());
            connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                    [&host] { host.setUsable("three", false); });
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            open(host);
            type(host, "drei");
            QVERIFY(model(host)->line(0).isEnabled);
            for (int time = 0; time < 2; ++time) {
                QTest::keyClick(field(host), Qt::Key_Return, modifier);
                QCoreApplication::processEvents();
                QVERIFY(field(host));
                QVERIFY(!model(host)->line(0).isEnabled);
                QCOMPARE(model(host)->line(0).reason, QString("select a page"));
            }
            QVERIFY(active.isEmpty());
            QCOMPARE(host.find<QStackedWidget>("tabwidget")->currentIndex(), 0);
        }
    }

    void shouldShowWhereTheCommandIs_data()
    {
        addRows(commands);
    }
    void shouldShowWhereTheCommandIs()
    {
        TestHost host = usable(several());
        answer(host);
        host.toolBar()->InitMainToolBar("0"); // Folds the rows.
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        run(host, rowOf(commands).name, Qt::ControlModifier);
        QTRY_COMPARE(host.toolBar()->findChildren<ButtonRing *>().size(), 1);
        const QPointer<ButtonRing> ring(host.toolBar()->findChild<ButtonRing *>());
        QVERIFY(ring->isVisible());
        const QWidget *control =
            host.toolBar()->childAt(ring->mapTo(host.toolBar(), ring->rect().center()));
        const auto *button = qobject_cast<const QToolButton *>(control);
        const QAction *shown = button ? button->defaultAction() : nullptr;
        QCOMPARE(shown ? shown->objectName() : control->objectName(),
                 QString(rowOf(commands).outlined));
        QTRY_VERIFY(!ring);
        QVERIFY(active.isEmpty());
    }

    void shouldOfferTheLastFoundFirst()
    {
        TestHost host = usable(several());
        answer(host);
        run(host, "two");
        run(host, "four");
        open(host);
        QCOMPARE(found(host).mid(0, 3), QStringList({"four", "two", "three"}));
        auto *finder = host.toolBar()->findChild<CommandFinder *>();
        QCOMPARE(finder->lastFound(), QStringList({"four", "two"}));
        QSignalSpy changed(finder, &CommandFinder::lastFoundChanged);
        finder->setLastFound({"h_help", "unknown"});
        QCOMPARE(changed.size(), 1);
        QTest::keyClick(field(host), Qt::Key_Escape);
        open(host);
        QCOMPARE(found(host).first(), QString("h_help"));
    }

    void shouldMoveByKeys()
    {
        TestHost host = usable(several());
        open(host);
        auto *list = host.find<QListView>("findcommand_list");
        const auto last = found(host).size() - 1;
        const QList<QPair<Qt::Key, int>> steps{
            {Qt::Key_Down, 1},     {Qt::Key_Up, 0},     {Qt::Key_Up, last},  {Qt::Key_Down, 0},
            {Qt::Key_PageDown, 8}, {Qt::Key_PageUp, 0}, {Qt::Key_End, last}, {Qt::Key_Home, 0}};
        for (const auto &[key, row] : steps) {
            QTest::keyClick(field(host), key);
            QCOMPARE(list->currentIndex().row(), row);
        }
    }

    void shouldRunWhatIsClicked()
    {
        TestHost host = usable(several());
        QTest::mouseMove(host.find<QWidget>("top_widget"));
        open(host);
        auto *list = host.find<QListView>("findcommand_list");
        const auto row = static_cast<int>(found(host).indexOf("two"));
        const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseMove(list->viewport(), place);
        QTRY_COMPARE(list->currentIndex().row(), row);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTRY_COMPARE(TestHost::texts(active), QStringList{"two"});
    }

    void shouldCloseAndGiveTheFocusBack()
    {
        TestHost host = usable(several());
        QVERIFY(!host.toolBar()->findChild<CommandFinder *>());
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        auto *pages = new QTextEdit;
        host.window().setCentralWidget(pages);
        QTRY_VERIFY(pages->isVisible());
        const std::function<void()> ends[]{
            [&] { QTest::keyClick(field(host), Qt::Key_Escape); },
            [&] { QTest::mouseClick(host.find<QWidget>("top_widget"), Qt::LeftButton); },
            [&] { QTest::mouseClick(host.find<QPushButton>("t_findcommand"), Qt::LeftButton); },
            [&] { pages->setFocus(); },
        };
        for (const auto &end : ends) {
            pages->setFocus();
            host.click("t_findcommand");
            QVERIFY(field(host) && field(host)->hasFocus());
            QVERIFY(host.window().rect().contains(host.find<QWidget>("findcommand")->geometry()));
            end();
            QVERIFY(!field(host));
            QVERIFY(pages->hasFocus());
        }
        QVERIFY(active.isEmpty());
    }

    void shouldFollowTextsAndScaleWhileItIsOpen()
    {
        TestHost host = usable(several());
        open(host);
        type(host, "renamed");
        const int height = host.find<QWidget>("findcommand")->height();
        const QSignalSpy searches(model(host), &QAbstractItemModel::modelReset);
        for (const char *other : {"one", "three", "four", "d_one", "d_two"})
            host.toolBar()->SetControlText(other, "Other");
        host.toolBar()->SetControlText("two", "Renamed");
        QTRY_COMPARE(found(host), QStringList{"Renamed"});
        QVERIFY(searches.size() <= 2); // Once for all, and once for how they are spelt.
        host.facade().DoSetScaleSlot(3);
        QVERIFY(host.find<QWidget>("findcommand")->height() > height);
    }

    void shouldLetTheHostDeleteTheWindow()
    {
        for (const bool isInAnswer : {true, false}) {
            TestHost host = usable(several());
            const auto end = [&host] { host.deleteWindow(); };
            if (isInAnswer)
                connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(), end);
            else
                connect(&host.facade(), &MRToolBar::DoActive, &host.facade(), end);
            const QPointer<QMainWindow> window(&host.window());
            run(host, isInAnswer ? "four" : "one");
            QTRY_VERIFY(!window);
            runDeferredDeletes();
        }
    }
};

QTEST_MAIN(FindCommandTest)
#include "tst_findcommand.moc"
