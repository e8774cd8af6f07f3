// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/PageHost.h"
#include "tests/support/Pictures.h"
#include "tests/support/Pointer.h"
#include "tests/support/Rows.h"

#include <QSet>

using namespace Describe;

namespace {

/** The tab of a context before the others: "home" is open, "edit" and "view" are beside it. */
QString withContexts()
{
    return section("tabbar", tab("text", button("t_one"), "context='text' contextcolour='#C0392B'")
                                 + tab("home", button("one"), "checked='true'")
                                 + tab("table", button("t_two"), "context='table'")
                                 + tab("edit", button("two")) + tab("view", button("three")))
           + section("addtional", button("t_fold"));
}

/** What a user and a host do, the tabs that are left, and those reported, of which the last is
 *  open; "home" if there was none. */
const struct
{
    const char *name;
    const char *steps;
    const char *tabs;
    const char *reported;
    bool isFolded = false;
} uses[] = {
    {"shown", "select text", "home,edit,view,text", ""},
    {"shown in their order", "select table,select text", "home,edit,view,text,table", ""},
    {"one is over", "select text,select table,unselect text", "home,edit,view,table", ""},
    {"no context", "select unknown", "home,edit,view", ""},
    {"shown by name alone", "unhide text", "home,edit,view", ""},
    {"shown with all tabs", "unhide toolbar_tabbar", "home,edit,view", ""},
    {"hidden by name first", "hide text,select text", "home,edit,view", ""},
    {"hidden by name later", "select text,hide text", "home,edit,view", ""},
    {"shown by name again", "hide text,select text,unhide text", "home,edit,view,text", ""},
    {"back to the tab before", "select text,click edit,click text,unselect text", "home,edit,view",
     "edit,text,edit"},
    {"not from another tab", "select text,click text,click view,unselect text", "home,edit,view",
     "text,view"},
    {"past another context",
     "select text,click edit,select table,click text,click table,unselect table,unselect text",
     "home,edit,view", "edit,text,table,text,edit"},
    {"past a hidden tab", "select text,click edit,click text,hide edit,unselect text", "home,view",
     "edit,text,home"},
    {"to the nearest tab that is left",
     "select text,click text,hide home,disable edit,unselect text", "edit,view", "text,edit"},
    {"folded rows stay so", "select text,click text,click t_fold,unselect text", "home,edit,view",
     "text,home", true},
    {"a call", "tab view,tab view,tab edit", "home,edit,view", "view,edit"},
    {"a call for the tab on show", "tab home", "home,edit,view", ""},
    {"a call, folded", "click t_fold,tab edit", "home,edit,view", "edit"},
    {"a call for the tab on show, folded", "click t_fold,tab home", "home,edit,view", ""},
    {"a call for a hidden tab", "hide edit,tab edit", "home,view", ""},
    {"a call for a disabled tab", "disable edit,tab edit", "home,edit,view", ""},
    {"a call for no tab", "tab one,tab text", "home,edit,view", ""},
    {"a call for a context's tab", "select text,tab text", "home,edit,view,text", "text"},
    {"clicks on the tab on show", "click home,click home", "home,edit,view", ""},
    {"left by name", "hide home", "edit,view", "edit"},
};

} // namespace

/** Tabs that the host shows for a moment, opens and hears of. */
class ContextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAndReportTheTabsAsTheyAreUsed_data() { addRows(uses); }
    void shouldShowAndReportTheTabsAsTheyAreUsed()
    {
        const auto &use = rowOf(uses);
        PageHost host(withContexts());
        QSignalSpy shown(&host.facade(), &MRToolBar::DoTabShown);
        QObject::connect(&host.facade(), &MRToolBar::DoTabShown, &host.window(),
                         [&](const QString &name) { QCOMPARE(host.openTab(), name); });
        host.act(use.steps);
        QCOMPARE(host.tabsFromTheLeft().join(','), QString(use.tabs));
        QCOMPARE(host.facade().GetCompositeVisible("text"), host.isShown("text"));
        const QStringList reported = TestHost::texts(shown);
        QCOMPARE(reported.join(','), QString(use.reported));
        QCOMPARE(host.openTab(), reported.isEmpty() ? QString("home") : reported.last());
        QVERIFY(host.find<QPushButton>(host.openTab())->isChecked());
        QCOMPARE(host.areRowsSeen(), !use.isFolded);
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

    void shouldBeReadableInItsTint_data() { addSkins(); }
    /** Of what is painted, the ground is most, and the text differs most from it. */
    void shouldBeReadableInItsTint()
    {
        const SkinChoice choice;
        const QString name = "\u25A0\u25A0\u25A0";
        for (const char *scheme : {"light", "dark", "contrast"}) {
            for (const char *colour : {"#C0392B", "#FFD54F", "#1B5E20", "#EFEFEF", "nonsense"}) {
                const QString context = QString("context='c' contextcolour='%1'").arg(colour);
                PageHost host(section("tabbar", tab("home", button("one"), "checked='true'")
                                                    + tab(name, {}, context)),
                              {{"scheme", scheme}});
                host.act("select c");
                QSet<QRgb> grounds;
                for (const QString &step : {QString(), "tab " + name}) {
                    host.act(step);
                    movePointerAway();
                    const QImage picture = host.find<QPushButton>(name)->grab().toImage();
                    const QSize size = picture.size();
                    const QRgb ground = picture.pixel(size.width() / 2, size.height() / 4);
                    const double best =
                        bestContrast(picture.copy(0, size.height() / 2, size.width(), 1), ground);
                    QVERIFY2(best >= 4.5, qPrintable(scheme + context + QString::number(best)));
                    grounds.insert(ground);
                }
                QCOMPARE(grounds.size(), 2);
            }
        }
    }

    void shouldLetTheHostAnswerATab()
    {
        const QList<QPair<QString, QString>> uses{{"select text", "tab text"},
                                                  {"select text", "click text"},
                                                  {"select text,tab text", "unselect text"},
                                                  {"", "hide home"}};
        for (const auto &[before, last] : uses) {
            PageHost host(withContexts());
            host.act(before);
            QObject::connect(&host.facade(), &MRToolBar::DoTabShown, &host.facade(),
                             [&host] { host.deleteWindow(); });
            host.step(last);
            runDeferredDeletes();
            QVERIFY2(!host.facade().IsSupportByToolBar("one"), qPrintable(last));
        }
    }
};

QTEST_MAIN(ContextsTest)
#include "tst_contexts.moc"
