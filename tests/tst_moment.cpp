// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/skin/Contrast.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QStackedWidget>
#include <QTextEdit>
#include <QWindow>

#include <algorithm>
#include <memory>

using namespace Describe;

namespace {

/** The tab of a context before the others: "home" is open, "edit" and "view" are beside it. */
QString withContexts(const QString &more = {})
{
    const QString context = "context='text' contextcolour='#C0392B' ";
    return section("tabbar", tab("text", button("t_one"), context + more)
                                 + tab("home", button("one"), "checked='true'")
                                 + tab("table", button("t_two"), "context='table'")
                                 + tab("edit", button("two")) + tab("view", button("three")))
           + section("addtional", button("t_fold"));
}

/** Rows with a command, a menu and the two fields, which a click on a tab only peeks at. */
QString withPeek(const QString &foldMore = "peek='true'")
{
    const QString fields = comboBox("v_zoom", choice("vzmode_50p", "50%"), "editable='true'")
                           + field("d_gotopage", "text='Page'");
    return section("tabbar", tab("home", button("one"), "checked='true'")
                                 + tab("edit", button("two") + menu("m", item("entry")) + fields))
           + section("addtional", button("h_help") + button("t_fold", foldMore));
}

/** A host with a page in its window. */
class Host : public TestHost
{
public:
    explicit Host(const QString &description, const SkinMap &skin = {})
        : TestHost(description, skin)
        , page(new QTextEdit)
    {
        window().setCentralWidget(page);
        enableRows();
        show();
        enableEverything();
        page->setFocus();
    }

    void showContext(const QString &name, bool shown) { facade().DoShowContextSlot(name, shown); }
    void showTab(QString name) { facade().DoShowTabSlot(name); }
    bool isShown(const QString &name) const
    {
        const auto *widget = find<QWidget>(name);
        return widget && widget->isVisible();
    }
    QString openTab() const
    {
        const auto *stack = find<QStackedWidget>("tabwidget");
        for (const QPushButton *tab : shownTabs()) {
            if (tab->property("tabindex").toInt() == stack->currentIndex())
                return tab->objectName();
        }
        return {};
    }
    QStringList tabsFromTheLeft() const
    {
        QList<QPushButton *> tabs = shownTabs();
        std::sort(tabs.begin(), tabs.end(),
                  [](QPushButton *a, QPushButton *b) { return a->x() < b->x(); });
        QStringList names;
        for (const QPushButton *tab : tabs)
            names.append(tab->objectName());
        return names;
    }
    bool areRowsSeen() const { return isShown("tabwidget"); }
    QRect pages() const { return QRect(page->mapTo(page->window(), QPoint()), page->size()); }
    /** Waits until the window has laid out what has changed. */
    void settle() const { QTRY_COMPARE(pages().top(), toolBar()->sizeHint().height()); }
    /** As the windowing system reports two fast clicks. */
    void doubleClick(const QString &name)
    {
        auto *widget = find<QAbstractButton>(name);
        const QPoint place = widget->mapTo(&window(), widget->rect().center());
        QTest::mouseDClick(window().windowHandle(), Qt::LeftButton, {}, place);
    }
    /** The steps, separated by commas, of a user or host. */
    void act(const QString &steps);

    QTextEdit *page;
};

void Host::act(const QString &steps)
{
    const QStringList all = steps.split(',', Qt::SkipEmptyParts);
    for (const QString &step : all) {
        const QString what = step.section(' ', 0, 0);
        const QString name = step.section(' ', 1);
        if (what == "click")
            click(name);
        else if (what == "double")
            doubleClick(name);
        else if (what == "select" || what == "unselect")
            showContext(name, what == "select");
        else if (what == "tab")
            showTab(name);
        else if (what == "hide" || what == "unhide")
            setVisible(name, what == "unhide");
        else if (what == "disable")
            setUsable(name, false);
        else if (what == "page")
            QTest::mouseClick(page->viewport(), Qt::LeftButton, {},
                              QPoint(20, page->viewport()->height() - 20));
        else if (what == "key")
            QTest::keyClick(QApplication::focusWidget(),
                            name == "Escape" ? Qt::Key_Escape : Qt::Key_Return);
        else
            QFAIL(qPrintable("There is no step " + step));
        settle();
    }
}

} // namespace

/** Tabs that are there for a moment, and rows that are: contexts, tabs by name, and peeking. */
class MomentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheTabsOfAContextAfterTheOthers()
    {
        Host host(withContexts());
        const QStringList always{"home", "edit", "view"};
        QCOMPARE(host.tabsFromTheLeft(), always);
        host.act("select text");
        QCOMPARE(host.tabsFromTheLeft(), always + QStringList("text"));
        QCOMPARE(host.openTab(), QString("home"));
        host.act("select table,select unknown");
        QCOMPARE(host.tabsFromTheLeft(), always + QStringList({"text", "table"}));
        host.act("unselect text");
        QCOMPARE(host.tabsFromTheLeft(), always + QStringList("table"));
    }

    void shouldKeepToItsContextAndToItsName_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("shown by name alone") << "unhide text" << false;
        QTest::newRow("shown with all tabs") << "unhide toolbar_tabbar" << false;
        QTest::newRow("hidden by name first") << "hide text,select text" << false;
        QTest::newRow("hidden by name later") << "select text,hide text" << false;
        QTest::newRow("shown by name again") << "hide text,select text,unhide text" << true;
        QTest::newRow("the name of a context is none") << "select text,hide table" << true;
    }

    void shouldKeepToItsContextAndToItsName()
    {
        QFETCH(QString, steps);
        Host host(withContexts());
        host.act(steps);
        QTEST(host.tabsFromTheLeft().contains("text"), "isShown");
        QTEST(host.facade().GetCompositeVisible("text"), "isShown");
    }

    void shouldGoBackFromATabWhoseContextEnds_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("openTab");
        QTest::newRow("to the tab before") << "click edit,click text,unselect text"
                                           << "edit";
        QTest::newRow("not from another tab") << "click text,click view,unselect text"
                                              << "view";
        QTest::newRow("past another context")
            << "click edit,select table,click text,click table,unselect table,unselect text"
            << "edit";
        QTest::newRow("past a hidden tab") << "click edit,click text,hide edit,unselect text"
                                           << "home";
        QTest::newRow("to the nearest tab that is left")
            << "click text,hide home,disable edit,unselect text"
            << "edit";
    }

    void shouldGoBackFromATabWhoseContextEnds()
    {
        QFETCH(QString, steps);
        Host host(withContexts());
        host.act("select text," + steps);
        QTEST(host.openTab(), "openTab");
        QVERIFY(host.find<QPushButton>(host.openTab())->isChecked());
    }

    void shouldLeaveTheRowsFoldedWhenAContextEnds()
    {
        Host host(withContexts());
        host.act("select text,click text,click t_fold,unselect text");
        QCOMPARE(host.openTab(), QString("home"));
        QVERIFY(!host.areRowsSeen());
    }

    void shouldNotBeginWithTheTabOfAContext()
    {
        Host host(section("tabbar", tab("text", button("t"), "context='text' checked='true'")
                                        + tab("home", button("one"))));
        QCOMPARE(host.openTab(), QString("home"));
        host.act("select text");
        QVERIFY(!host.find<QPushButton>("text")->isChecked());
        QVERIFY(!host.action("t"));
    }

    void shouldNotOpenATabWhoseContextEndsMeanwhile()
    {
        Host host(withContexts());
        host.act("select text");
        QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.window(),
                         [&] { host.showContext("text", false); });
        host.click("text");
        QCOMPARE(host.openTab(), QString("home"));
        // Leaving a tab by name passes over it, too.
        host.act("click view,hide view");
        QCOMPARE(host.openTab(), QString("home"));
    }

    void shouldBeReadableInItsTint_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("scheme");
        QTest::addColumn<QString>("colour");
        for (const char *scheme : {"light", "dark", "contrast"}) {
            for (const char *colour : {"#C0392B", "#FFD54F", "#1B5E20", "#EFEFEF", "nonsense"}) {
                QTest::addRow("marodi %s %s", scheme, colour) << marodi << scheme << colour;
                QTest::addRow("lum %s %s", scheme, colour) << lum << scheme << colour;
            }
        }
    }

    /** Of what is painted, the ground is most, and the text differs most from it. */
    void shouldBeReadableInItsTint()
    {
        QFETCH(QString, scheme);
        QFETCH(QString, colour);
        const SkinChoice choice;
        Host host(section("tabbar", tab("home", button("one"), "checked='true'")
                                        + tab("\u25A0\u25A0\u25A0", {},
                                              "context='c' contextcolour='" + colour + "'")),
                  {{"scheme", scheme}});
        movePointerAway();
        host.act("select c");
        auto *tab = host.find<QPushButton>("\u25A0\u25A0\u25A0");
        QSet<QRgb> grounds;
        for (const bool isOpen : {false, true}) {
            if (isOpen)
                host.act("tab \u25A0\u25A0\u25A0");
            movePointerAway();
            const QImage picture = tab->grab().toImage();
            const QColor ground = picture.pixelColor(picture.width() / 2, picture.height() / 4);
            double best = 1;
            for (int x = 0; x < picture.width(); ++x)
                best = std::max(
                    best, Contrast::ratio(ground, picture.pixelColor(x, picture.height() / 2)));
            QVERIFY2(best >= 4.5, qPrintable(ground.name() + QString::number(best)));
            grounds.insert(ground.rgb());
        }
        QCOMPARE(grounds.size(), 2);
    }

    void shouldOpenATabByName_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("openTab");
        QTest::addColumn<bool>("isUnfolded");
        QTest::newRow("another tab") << "tab edit"
                                     << "edit" << true;
        QTest::newRow("the tab on show") << "tab home"
                                         << "home" << true;
        QTest::newRow("folded") << "click t_fold,tab edit"
                                << "edit" << true;
        QTest::newRow("folded, on show") << "click t_fold,tab home"
                                         << "home" << true;
        QTest::newRow("hidden") << "hide edit,tab edit"
                                << "home" << true;
        QTest::newRow("disabled") << "disable edit,tab edit"
                                  << "home" << true;
        QTest::newRow("no tab") << "tab one"
                                << "home" << true;
        QTest::newRow("hidden context") << "tab text"
                                        << "home" << true;
        QTest::newRow("shown context") << "select text,tab text"
                                       << "text" << true;
    }

    void shouldOpenATabByName()
    {
        QFETCH(QString, steps);
        Host host(withContexts());
        host.act(steps);
        QTEST(host.openTab(), "openTab");
        QTEST(host.areRowsSeen(), "isUnfolded");
        QVERIFY(host.find<QPushButton>(host.openTab())->isChecked());
    }

    void shouldReportEachTabThatIsShown_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("reported");
        QTest::newRow("a click") << "click edit"
                                 << "edit";
        QTest::newRow("no change") << "click home,click home,tab home"
                                   << "";
        QTest::newRow("a call") << "tab view,tab view,tab edit"
                                << "view,edit";
        QTest::newRow("a context ends") << "select text,tab text,unselect text"
                                        << "text,home";
        QTest::newRow("a tab is left by name") << "hide home"
                                               << "edit";
    }

    void shouldReportEachTabThatIsShown()
    {
        QFETCH(QString, steps);
        QFETCH(QString, reported);
        Host host(withContexts());
        QStringList rows;
        QObject::connect(&host.facade(), &MRToolBar::DoTabShown, &host.window(),
                         [&](const QString &name) {
                             QCOMPARE(host.openTab(), name);
                             rows.append(name);
                         });
        host.act(steps);
        QCOMPARE(rows.join(','), reported);
    }

    void shouldLetTheHostAnswerATab_data()
    {
        QTest::addColumn<QString>("steps");
        for (const char *steps : {"tab text", "click text", "tab text,unselect text", "hide home"})
            QTest::newRow(steps) << steps;
    }

    void shouldLetTheHostAnswerATab()
    {
        QFETCH(QString, steps);
        auto host = std::make_unique<Host>(withContexts());
        host->act("select text");
        const QStringList all = steps.split(',');
        for (const QString &step : all.mid(0, all.size() - 1))
            host->act(step);
        QObject::connect(&host->facade(), &MRToolBar::DoTabShown, qApp,
                         [&] { host->deleteWindow(); });
        const QString name = all.last().section(' ', 1);
        if (all.last().startsWith("unselect"))
            host->showContext(name, false);
        else if (all.last().startsWith("hide"))
            host->setVisible(name, false);
        else if (all.last().startsWith("tab"))
            host->showTab(name);
        else
            host->click(name);
        runDeferredDeletes();
        QVERIFY(!host->facade().IsSupportByToolBar("one"));
    }

    void shouldLayARowOverThePages_data() { addSkins(); }
    void shouldLayARowOverThePages()
    {
        const SkinChoice choice;
        Host host(withPeek());
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
        Host host(withPeek(), {{"scalefactor", "1"}});
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
        Host host(withPeek());
        host.act("click t_fold");
        const QRect pages = host.pages();
        host.act("click edit," + steps);
        QCOMPARE(host.areRowsSeen(), rows != "folded");
        QCOMPARE(host.pages() == pages, rows != "unfolded");
        QCOMPARE(host.isShown("t_extend"), rows != "unfolded");
        if (rows == "folded")
            QCOMPARE(host.toolBar()->height(), pages.top());
    }

    void shouldEndAPeekBeforeItsCommandIsUsed()
    {
        Host host(withPeek());
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
        Host host(withPeek());
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
        Host host(withPeek());
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
        Host host(withPeek());
        host.act(steps);
        QCOMPARE(host.areRowsSeen(), isUnfolded);
        QCOMPARE(host.isShown("t_fold"), isUnfolded);
        QCOMPARE(host.toolBar()->height(), host.pages().top());
        QCOMPARE(host.openTab(), steps.contains("edit") ? QString("edit") : QString("home"));
    }

    void shouldUnfoldByAClickWithoutPeek()
    {
        Host host(withPeek({}));
        host.act("click t_fold,click edit");
        QVERIFY(host.isShown("t_fold"));
        QTRY_COMPARE(host.toolBar()->height(), host.pages().top());
    }

    void shouldSurviveTheEndOfTheWindowWhilePeeking()
    {
        Host host(withPeek());
        host.act("click t_fold,click edit");
        host.deleteFacade();
        host.deleteWindow();
        runDeferredDeletes();

        Host other(withPeek());
        other.act("click t_fold,click edit");
        delete other.toolBar();
        runDeferredDeletes();
        QVERIFY(other.window().isVisible());
        QTest::mouseClick(other.page->viewport(), Qt::LeftButton);
    }
};

QTEST_MAIN(MomentTest)
#include "tst_moment.moc"
