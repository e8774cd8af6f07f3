// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Finder.h"
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

Q_DECLARE_METATYPE(Fit)

using namespace Finder;

class FindCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellHowWellWhatIsTypedFits_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Fit>("fit");
        QTest::newRow("whole text") << "zoom"
                                    << "Zoom" << Fit::Word;
        QTest::newRow("whole word") << "zoom"
                                    << "v_zoom in" << Fit::Word;
        QTest::newRow("a later word") << "in"
                                      << "inner, in" << Fit::Word;
        QTest::newRow("accents") << "resume"
                                 << "Résumé" << Fit::Word;
        QTest::newRow("prefix") << "zo"
                                << "v_zoom" << Fit::Prefix;
        QTest::newRow("prefix of ideographs") << "缩"
                                              << "缩放" << Fit::Prefix;
        QTest::newRow("substring") << "oo"
                                   << "zoom" << Fit::Substring;
        QTest::newRow("subsequence") << "zm"
                                     << "zoom" << Fit::Subsequence;
        QTest::newRow("any order") << "mzo"
                                   << "zoom" << Fit::Letters;
        QTest::newRow("a letter too often") << "zzm"
                                            << "zoom" << Fit::None;
        QTest::newRow("another letter") << "zoomx"
                                        << "zoom" << Fit::None;
        QTest::newRow("nothing") << ""
                                 << "zoom" << Fit::None;
    }

    void shouldTellHowWellWhatIsTypedFits()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(Fit, fit);
        QCOMPARE(matchOf(SearchText(typed), SearchText(text)).fit, fit);
    }

    void shouldFindByEverythingThatACommandIsCalled_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("first");
        QTest::newRow("text") << "缩放"
                              << "缩放";
        QTest::newRow("initials") << "sf"
                                  << "缩放";
        QTest::newRow("spelling") << "suofang"
                                  << "缩放";
        QTest::newRow("tooltip") << "enlarge"
                                 << "缩放";
        QTest::newRow("name") << "v_scale"
                              << "缩放";
        QTest::newRow("keyword") << "lupe"
                                 << "缩放";
        QTest::newRow("words in any order") << "lupe scale"
                                            << "缩放";
        QTest::newRow("text before name") << "scale"
                                          << "Scale";
        QTest::newRow("mnemonic") << "open"
                                  << "Open";
    }

    void shouldFindByEverythingThatACommandIsCalled()
    {
        QFETCH(QString, typed);
        QFETCH(QString, first);
#ifndef MRTOOLBAR_HAS_SPELLING
        if (QTest::currentDataTag() == QByteArray("initials")
            || QTest::currentDataTag() == QByteArray("spelling"))
            QSKIP("Built without the library that spells");
#endif
        TestHost host = TestHost::enabled(row(
            "<button name='v_scale' text='缩放' tooltip='Enlarge;the page' keywords='lupe glass'/>"
            "<button name='other' text='Scale'/><button name='x' text='&amp;Open(&amp;O)'/>"));
        open(host);
        type(host, typed);
        QTRY_VERIFY(!found(host).isEmpty());
        QTRY_COMPARE(found(host).first(), first);
    }

    void shouldListACommandOnceWhereverItStands()
    {
        TestHost host = usable(several());
        open(host);
        QCOMPARE(found(host), QStringList({"three", "f_recent", "qbar_quick", "h_help", "one",
                                           "two", "d_one", "d_two", "four"}));
        type(host, "three");
        QCOMPARE(model(host)->line(0).where, QString("other"));
    }

    void shouldNotListWhatIsHidden()
    {
        TestHost host = usable(several());
        host.setVisible("two", false);
        host.setVisible("d_drop", false);
        host.setVisible("other", false);
        host.setVisible("h_help", false);
        open(host);
        // The menu still leads to the command on the hidden tab.
        QCOMPARE(found(host), QStringList({"menu_three", "f_recent", "qbar_quick", "one"}));
    }

    void shouldShowWhereItStandsAndItsKey()
    {
        TestHost host = TestHost::enabled(
            section("appbutton", menu("file", menu("more", item("deep", "shortcut='Ctrl+D'")))));
        open(host);
        QCOMPARE(model(host)->line(0).where, QString("file › more"));
        QCOMPARE(model(host)->line(0).key, QString("Ctrl+D"));
    }

    void shouldTriggerTheCommandAsAClickWould_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("reported");
        for (const char *name : {"one", "three", "four", "d_two", "f_recent", "h_help"})
            QTest::newRow(name) << name << name;
        QTest::newRow("quick access") << "qbar_quick"
                                      << "quick";
    }

    void shouldTriggerTheCommandAsAClickWould()
    {
        QFETCH(QString, typed);
        QFETCH(QString, reported);
        TestHost host = usable(several());
        answer(host);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        run(host, typed);
        QTRY_COMPARE(TestHost::texts(active), QStringList{reported});
        QVERIFY(!field(host));
    }

    void shouldMakeARowOnlyWhenItIsNeeded()
    {
        TestHost host = usable(several());
        answer(host);
        QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        const auto *other = host.find<MRMainToolBar>("other");
        open(host);
        type(host, "three");
        QVERIFY(!other->isFilled());
        QTest::keyClick(field(host), Qt::Key_Return);
        QTRY_VERIFY(other->isFilled());
        QCOMPARE(asked.size(), 1);
        QVERIFY(!other->isVisible());
    }

    void shouldShowTheEntryThatWasChosenOnItsDropButton()
    {
        TestHost host = usable(several());
        run(host, "d_one");
        const auto *button = host.find<MRDropButton>("d_drop");
        QTRY_COMPARE(button->GetCurrentAction(), host.action("d_one"));
    }

    void shouldNeitherRunNorLeaveADisabledCommand_data()
    {
        QTest::addColumn<int>("modifier");
        QTest::newRow("run") << int(Qt::NoModifier);
        QTest::newRow("show") << int(Qt::ControlModifier);
    }

    void shouldNeitherRunNorLeaveADisabledCommand()
    {
        QFETCH(int, modifier);
        TestHost host = usable(several());
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&host] { host.setUsable("three", false); });
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        open(host);
        type(host, "drei");
        QVERIFY(model(host)->line(0).isEnabled);
        for (int time = 0; time < 2; ++time) {
            QTest::keyClick(field(host), Qt::Key_Return, Qt::KeyboardModifiers(modifier));
            QCoreApplication::processEvents();
            QVERIFY(field(host));
            QVERIFY(!model(host)->line(0).isEnabled);
            QCOMPARE(model(host)->line(0).reason, QString("select a page"));
        }
        QVERIFY(active.isEmpty());
        QCOMPARE(host.find<QStackedWidget>("tabwidget")->currentIndex(), 0);
    }

    void shouldShowWhereTheCommandIs_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("outlined");
        for (const char *name : {"one", "three", "four", "h_help"})
            QTest::newRow(name) << name << name;
        QTest::newRow("entry of a drop menu") << "d_two"
                                              << "d_drop";
        QTest::newRow("entry of an application menu") << "f_recent"
                                                      << "file";
    }

    void shouldShowWhereTheCommandIs()
    {
        QFETCH(QString, typed);
        QFETCH(QString, outlined);
        TestHost host = usable(several());
        answer(host);
        host.toolBar()->InitMainToolBar("0"); // Folds the rows.
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        run(host, typed, Qt::ControlModifier);
        QTRY_COMPARE(host.toolBar()->findChildren<ButtonRing *>().size(), 1);
        const QPointer<ButtonRing> ring(host.toolBar()->findChild<ButtonRing *>());
        QVERIFY(ring->isVisible());
        const QPoint middle = ring->mapTo(host.toolBar(), ring->rect().center());
        const QWidget *control = host.toolBar()->childAt(middle);
        auto *button = qobject_cast<const QToolButton *>(control);
        const QString name = button && button->defaultAction()
                                 ? button->defaultAction()->objectName()
                                 : control->objectName();
        QCOMPARE(name, outlined);
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

    void shouldGiveTheFocusBack_data()
    {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("Escape") << true;
        QTest::newRow("a click outside") << false;
    }

    void shouldGiveTheFocusBack()
    {
        QFETCH(bool, isByKey);
        TestHost host = usable(several());
        auto *pages = new QTextEdit;
        host.window().setCentralWidget(pages);
        QTRY_VERIFY(pages->isVisible());
        pages->setFocus();
        open(host);
        QVERIFY(field(host)->hasFocus());
        if (isByKey)
            QTest::keyClick(field(host), Qt::Key_Escape);
        else
            QTest::mouseClick(host.find<QWidget>("top_widget"), Qt::LeftButton);
        QVERIFY(!field(host));
        QVERIFY(pages->hasFocus());
    }

    void shouldCloseWhereTheFocusGoesElsewhere()
    {
        TestHost host = usable(several());
        auto *pages = new QTextEdit;
        host.window().setCentralWidget(pages);
        QTRY_VERIFY(pages->isVisible());
        open(host);
        pages->setFocus();
        QVERIFY(!field(host));
        QVERIFY(pages->hasFocus());
    }

    void shouldOpenAndCloseByItsButtonUnreported()
    {
        TestHost host = usable(several());
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.click("t_findcommand");
        QVERIFY(field(host));
        QVERIFY(host.window().rect().contains(host.find<QWidget>("findcommand")->geometry()));
        QTest::mouseClick(host.find<QPushButton>("t_findcommand"), Qt::LeftButton);
        QVERIFY(!field(host));
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

    void shouldLetTheHostDeleteTheWindow_data()
    {
        QTest::addColumn<bool>("isInAnswer");
        QTest::newRow("when it is asked for states") << true;
        QTest::newRow("when the command is reported") << false;
    }

    void shouldLetTheHostDeleteTheWindow()
    {
        QFETCH(bool, isInAnswer);
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

    void shouldCostNothingBeforeItIsUsed()
    {
        TestHost host = usable(several());
        QVERIFY(!host.toolBar()->findChild<CommandFinder *>());
        QVERIFY(!host.find<QWidget>("findcommand"));
    }
};

QTEST_MAIN(FindCommandTest)
#include "tst_findcommand.moc"
