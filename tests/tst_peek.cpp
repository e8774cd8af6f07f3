// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/PageHost.h"
#include "tests/support/Rows.h"

#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>

using namespace Describe;

namespace {

/** Rows with a command, a menu and the two fields, which a click on a tab only peeks at. */
QString withPeek(const QString &foldMore = "peek='true'")
{
    const QString fields = comboBox("v_zoom", choice("vzmode_50p", "50%"), "editable='true'")
                           + field("d_gotopage", "text='Page' keytip='P'");
    return section("tabbar", tab("home", button("one"), "checked='true'")
                                 + tab("edit", button("two") + menu("m", item("entry")) + fields,
                                       "keytip='E'"))
           + section("addtional", button("h_help") + button("t_fold", foldMore));
}

enum class Rows
{
    Folded,
    Unfolded,
    Peeking
};

/** What comes after the rows have been folded and a tab has been clicked. */
const struct
{
    const char *name;
    const char *steps;
    Rows rows;
} ends[] = {
    {"a click on the tab", "click edit", Rows::Folded},
    {"a click on a page", "page", Rows::Folded},
    {"Esc", "key Escape", Rows::Folded},
    {"unfolding", "click t_extend", Rows::Unfolded},
    {"a command of the top line", "click h_help", Rows::Folded},
    {"hidden by name", "hide toolbar_maintoolbar", Rows::Folded},
    {"a click on another tab", "click home", Rows::Peeking},
    {"states by name", "disable one,hide edit", Rows::Peeking},
    {"a call for a tab", "tab home", Rows::Peeking},
};

const struct
{
    const char *name;
    const char *steps;
    bool isUnfolded;
} doubleClicks[] = {
    {"open tab", "double home", false},
    {"other tab", "double edit", false},
    {"folded, open tab", "click t_fold,double home", true},
    {"folded, other tab", "click t_fold,double edit", true},
    {"peeking, peeked tab", "click t_fold,click edit,double edit", true},
    {"twice", "double home,double home", true},
    {"one click after it", "double home,double home,click home", false},
};

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
        const QWidget *seen = QApplication::widgetAt(command.center());
        QVERIFY(seen && seen->inherits("QToolButton"));
        host.window().resize(900, 500);
        QTRY_COMPARE(host.page->window()->width(), 900);
        QCOMPARE(host.find<QWidget>("tabwidget")->width(), host.toolBar()->width());
        QCOMPARE(host.pages().top(), pages.top());
    }

    void shouldFollowTheScaleWhilePeeking()
    {
        PageHost host(withPeek(), {{"scalefactor", "1"}});
        host.act("click t_fold,click edit");
        const QWidget *rows = host.find<QWidget>("tabwidget");
        const int before = rows->height();
        host.facade().DoSetScaleSlot(2);
        QTRY_VERIFY(rows->height() > before * 3 / 2);
        const int peeked = rows->height();
        QCOMPARE(host.pages().top(), host.find<QWidget>("top_widget")->height());
        host.act("click t_extend");
        QTRY_COMPARE(host.pages().top(), host.toolBar()->height());
        QCOMPARE(rows->height(), peeked);
    }

    void shouldEndAPeek_data() { addRows(ends); }
    void shouldEndAPeek()
    {
        const Rows rows = rowOf(ends).rows;
        PageHost host(withPeek());
        host.act("click t_fold");
        const QRect pages = host.pages();
        host.act("click edit");
        host.act(rowOf(ends).steps);
        QCOMPARE(host.areRowsSeen(), rows != Rows::Folded);
        QCOMPARE(host.pages() == pages, rows != Rows::Unfolded);
        QCOMPARE(host.isShown("t_extend"), rows != Rows::Unfolded);
        if (rows == Rows::Folded)
            QCOMPARE(host.toolBar()->height(), pages.top());
    }

    void shouldEndAPeekBeforeItsCommandIsUsed()
    {
        PageHost host(withPeek());
        const QSignalSpy used(&host.facade(), &MRToolBar::DoActive);
        QObject::connect(&host.facade(), &MRToolBar::DoActive, &host.window(),
                         [&] { QVERIFY(!host.areRowsSeen()); });
        host.act("click t_fold,click edit");
        QTest::mouseClick(QApplication::widgetAt(host.facade().GetControlGeometry("two").center()),
                          Qt::LeftButton);
        host.act("click edit");
        auto *menu = host.find<QMenu>("m");
        menu->popup(host.facade().GetControlGeometry("m").bottomLeft());
        QTRY_VERIFY(menu->isVisible());
        QVERIFY(host.areRowsSeen());
        clickEntries(menu, {"entry"});
        QCOMPARE(TestHost::texts(used), QStringList({"two", "entry"}));
    }

    void shouldLetFieldsBeTypedInWhilePeeking()
    {
        PageHost host(withPeek());
        QSignalSpy pages(&host.facade(), &MRToolBar::DoGotoPage);
        host.act("click t_fold,click edit");
        host.facade().DoSetPageInfoSlot(1, 9);
        auto *field = host.find<QLineEdit>("d_gotopage");
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

    void shouldGiveTheFocusBackToWhatHadItBeforeTheKeyTips()
    {
        PageHost host(withPeek(), {{"keytips", "true"}});
        auto *own = new QLineEdit;
        host.window().statusBar()->addWidget(own);
        own->setFocus();
        host.act("click t_fold,key Alt,key E,key P");
        QVERIFY(host.find<QLineEdit>("d_gotopage")->hasFocus());
        host.act("key Escape");
        QVERIFY(!host.areRowsSeen());
        QCOMPARE(QApplication::focusWidget(), own);
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

    void shouldFoldOrUnfoldByADoubleClick_data() { addRows(doubleClicks); }
    void shouldFoldOrUnfoldByADoubleClick()
    {
        const QString steps = rowOf(doubleClicks).steps;
        PageHost host(withPeek());
        host.act(steps);
        QCOMPARE(host.areRowsSeen(), rowOf(doubleClicks).isUnfolded);
        QCOMPARE(host.isShown("t_fold"), rowOf(doubleClicks).isUnfolded);
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

    void shouldSurviveTheEndOfTheToolbarWhilePeeking()
    {
        PageHost host(withPeek());
        host.act("click t_fold,click edit");
        // As a host does that goes on in an event loop of its own, where nothing is deleted later.
        delete host.toolBar();
        host.window().grab();
        runDeferredDeletes();
        QVERIFY(host.window().isVisible());
        QTest::mouseClick(host.page->viewport(), Qt::LeftButton);

        PageHost other(withPeek());
        other.act("click t_fold,click edit");
        other.deleteFacade();
        other.deleteWindow();
        runDeferredDeletes();
    }
};

QTEST_MAIN(PeekTest)
#include "tst_peek.moc"
