// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/PageHost.h"
#include "tests/support/Pointer.h"
#include "toolbar/skin/Contrast.h"

#include <QSet>

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

} // namespace

/** Tabs that the host shows for a moment, opens and hears of. */
class ContextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheTabsOfAContextAfterTheOthers()
    {
        PageHost host(withContexts());
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
        PageHost host(withContexts());
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
        PageHost host(withContexts());
        host.act("select text," + steps);
        QTEST(host.openTab(), "openTab");
        QVERIFY(host.find<QPushButton>(host.openTab())->isChecked());
    }

    void shouldLeaveTheRowsFoldedWhenAContextEnds()
    {
        PageHost host(withContexts());
        host.act("select text,click text,click t_fold,unselect text");
        QCOMPARE(host.openTab(), QString("home"));
        QVERIFY(!host.areRowsSeen());
    }

    void shouldNotBeginWithTheTabOfAContext()
    {
        PageHost host(section("tabbar", tab("text", button("t"), "context='text' checked='true'")
                                            + tab("home", button("one"))));
        QCOMPARE(host.openTab(), QString("home"));
        host.act("select text");
        QVERIFY(!host.find<QPushButton>("text")->isChecked());
        QVERIFY(!host.action("t"));
    }

    void shouldNotOpenATabWhoseContextEndsMeanwhile()
    {
        PageHost host(withContexts());
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
        PageHost host(section("tabbar", tab("home", button("one"), "checked='true'")
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
        PageHost host(withContexts());
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
        PageHost host(withContexts());
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
        auto host = std::make_unique<PageHost>(withContexts());
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
};

QTEST_MAIN(ContextsTest)
#include "tst_contexts.moc"
