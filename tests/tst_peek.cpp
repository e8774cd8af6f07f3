// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/PageHost.h"

#include <QLineEdit>
#include <QMenu>

using namespace Describe;

namespace {

/** Rows with a command, a menu and the two fields, which a click on a tab only peeks at. */
QString withPeek(const QString &foldMore = "peek='true'")
{
    const QString fields = comboBox("v_zoom", choice("vzmode_50p", "50%"), "editable='true'")
                           + field("d_gotopage", "text='Page'");
    return section("tabbar", tab("home", button("one"), "checked='true'")
                                 + tab("edit", button("two") + menu("m", item("entry")) + fields))
           + section("addtional", button("h_help") + button("t_fold", foldMore));
}

} // namespace

/** Folded rows that lie over the pages for a moment. */
class PeekTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLayARowOverThePages_data() { addSkins(); }
    void shouldLayARowOverThePages()
    {
        const SkinChoice choice;
        PageHost host(withPeek());
        const int unfolded = host.find<QWidget>("tabwidget")->height();
        host.act("click t_fold");
        const QRect pages = host.pages();
        host.act("click edit");
        QVERIFY(host.areRowsSeen());
        QCOMPARE(host.pages(), pages);
        QCOMPARE(host.find<QWidget>("tabwidget")->height(), unfolded);
        QVERIFY(host.isShown("t_extend"));
        QVERIFY(host.facade().GetCompositeVisible("toolbar_maintoolbar"));
        const QRect command = host.facade().GetControlGeometry("two");
        QWidget *seen = QApplication::widgetAt(command.center());
        QVERIFY(seen && seen->inherits("QToolButton"));
        host.window().resize(900, 500);
        QTRY_COMPARE(host.page->window()->width(), 900);
        QCOMPARE(host.find<QWidget>("tabwidget")->width(), host.toolBar()->width());
        QCOMPARE(host.pages().top(), pages.top());
        host.act("click home");
        QVERIFY(host.areRowsSeen());
        QCOMPARE(host.openTab(), QString("home"));
        QCOMPARE(host.pages().top(), pages.top());
    }

    void shouldFollowTheScaleWhilePeeking()
    {
        PageHost host(withPeek(), {{"scalefactor", "1"}});
        host.act("click t_fold,click edit");
        const int before = host.find<QWidget>("tabwidget")->height();
        host.facade().DoSetScaleSlot(2);
        const QWidget *rows = host.find<QWidget>("tabwidget");
        QTRY_VERIFY(rows->height() > before * 3 / 2);
        const int peeked = rows->height();
        QCOMPARE(host.pages().top(), host.find<QWidget>("top_widget")->height());
        host.act("click t_extend");
        QTRY_COMPARE(host.pages().top(), host.toolBar()->height());
        QCOMPARE(rows->height(), peeked);
    }

    void shouldEndAPeek_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("rows");
        QTest::newRow("a click on the tab") << "click edit"
                                            << "folded";
        QTest::newRow("a click on a page") << "page"
                                           << "folded";
        QTest::newRow("Esc") << "key Escape"
                             << "folded";
        QTest::newRow("unfolding") << "click t_extend"
                                   << "unfolded";
        QTest::newRow("a command of the top line") << "click h_help"
                                                   << "folded";
        QTest::newRow("hidden by name") << "hide toolbar_maintoolbar"
                                        << "folded";
        QTest::newRow("a click on another tab") << "click home"
                                                << "peeking";
        QTest::newRow("states by name") << "disable one,hide edit"
                                        << "peeking";
        QTest::newRow("a call for a tab") << "tab home"
                                          << "peeking";
    }

    void shouldEndAPeek()
    {
        QFETCH(QString, steps);
        QFETCH(QString, rows);
        PageHost host(withPeek());
        host.act("click t_fold");
        const QRect pages = host.pages();
        host.act("click edit," + steps);
        QCOMPARE(host.areRowsSeen(), rows != "folded");
        QCOMPARE(host.pages() == pages, rows != "unfolded");
        QCOMPARE(host.isShown("t_extend"), rows != "unfolded");
        if (rows == "folded")
            QCOMPARE(host.toolBar()->height(), pages.top());
    }

    void shouldSurviveTheEndOfTheToolbarWhilePeeking()
    {
        PageHost host(withPeek());
        host.act("click t_fold,click edit");
        QVERIFY(host.areRowsSeen());
        // As a host does that goes on in an event loop of its own, where nothing is deleted later.
        delete host.toolBar();
        host.window().grab();
        QVERIFY(!host.toolBar());
    }

    void shouldEndAPeekBeforeItsCommandIsUsed()
    {
        PageHost host(withPeek());
        QStringList used;
        QObject::connect(&host.facade(), &MRToolBar::DoActive, &host.window(),
                         [&](const QString &name) {
                             QVERIFY(!host.areRowsSeen());
                             used.append(name);
                         });
        host.act("click t_fold,click edit");
        QTest::mouseClick(QApplication::widgetAt(host.facade().GetControlGeometry("two").center()),
                          Qt::LeftButton);
        host.act("click edit");
        auto *menu = host.find<QMenu>("m");
        QVERIFY(menu);
        menu->popup(host.facade().GetControlGeometry("m").bottomLeft());
        QTRY_VERIFY(menu->isVisible());
        QVERIFY(host.areRowsSeen());
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(used, QStringList({"two", "entry"}));
    }

    void shouldLetFieldsBeTypedInWhilePeeking()
    {
        PageHost host(withPeek());
        QSignalSpy pages(&host.facade(), &MRToolBar::DoGotoPage);
        host.act("click t_fold,click edit");
        host.facade().DoSetPageInfoSlot(1, 9);
        auto *field = host.find<QLineEdit>("d_gotopage");
        QVERIFY(field);
        QTest::mouseClick(field, Qt::LeftButton);
        field->selectAll();
        QTest::keyClicks(field, "7");
        QVERIFY(host.areRowsSeen());
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_VERIFY(!host.areRowsSeen());
        QCOMPARE(pages.size(), 1);
        QTRY_VERIFY(host.page->hasFocus());
        // What the host reports is no use of the field.
        host.act("click edit");
        host.facade().DoSetZoomModeSlot("vzmode_70p");
        host.facade().DoSetZoomModeSlot("vzmode_50p");
        QVERIFY(host.areRowsSeen());
    }

    void shouldEndAPeekWithTheFocusOfTheWindow()
    {
        PageHost host(withPeek());
        host.act("click t_fold,click edit");
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QTRY_VERIFY(!host.areRowsSeen());
    }

    void shouldFoldOrUnfoldByADoubleClick_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<bool>("isUnfolded");
        QTest::newRow("open tab") << "double home" << false;
        QTest::newRow("other tab") << "double edit" << false;
        QTest::newRow("folded, open tab") << "click t_fold,double home" << true;
        QTest::newRow("folded, other tab") << "click t_fold,double edit" << true;
        QTest::newRow("peeking, peeked tab") << "click t_fold,click edit,double edit" << true;
        QTest::newRow("twice") << "double home,double home" << true;
        QTest::newRow("one click after it") << "double home,double home,click home" << false;
    }

    void shouldFoldOrUnfoldByADoubleClick()
    {
        QFETCH(QString, steps);
        QFETCH(bool, isUnfolded);
        PageHost host(withPeek());
        host.act(steps);
        QCOMPARE(host.areRowsSeen(), isUnfolded);
        QCOMPARE(host.isShown("t_fold"), isUnfolded);
        QCOMPARE(host.toolBar()->height(), host.pages().top());
        QCOMPARE(host.openTab(), steps.contains("edit") ? QString("edit") : QString("home"));
    }

    void shouldUnfoldByAClickWithoutPeek()
    {
        PageHost host(withPeek({}));
        host.act("click t_fold,click edit");
        QVERIFY(host.isShown("t_fold"));
        QTRY_COMPARE(host.toolBar()->height(), host.pages().top());
    }

    void shouldSurviveTheEndOfTheWindowWhilePeeking()
    {
        PageHost host(withPeek());
        host.act("click t_fold,click edit");
        host.deleteFacade();
        host.deleteWindow();
        runDeferredDeletes();

        PageHost other(withPeek());
        other.act("click t_fold,click edit");
        delete other.toolBar();
        runDeferredDeletes();
        QVERIFY(other.window().isVisible());
        QTest::mouseClick(other.page->viewport(), Qt::LeftButton);
    }
};

QTEST_MAIN(PeekTest)
#include "tst_peek.moc"
