#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QEventLoop>
#include <QStackedWidget>
#include <QTimer>

#include <utility>

using namespace Describe;

namespace {

/** Tabs "0" to "2" with a button each and these attributes. */
QString threeTabs(const QStringList &attributes)
{
    QString tabs;
    for (int i = 0; i < attributes.size(); ++i) {
        const QString name = QString::number(i);
        tabs += QStringLiteral("<tabbutton name='%1' text='%1' %2>%3</tabbutton>")
                    .arg(name, attributes.at(i), button("command" + name));
    }
    return section("tabbar", tabs) + section("addtional", "<button name='t_fold'/>");
}

const QString checkable = "checkable='true'";
const QString shown = "checkable='true' checked='true'";
const QString uncheckable = "checkable='false'";

/** A user or host that does one thing after the other, such as "click 1" or "hide 0". */
void act(TestHost &host, const QString &steps)
{
    const QStringList all = steps.split(',', Qt::SkipEmptyParts);
    for (const QString &step : all) {
        const QString tab = step.section(' ', 1);
        if (step.startsWith("click"))
            host.click(tab);
        else if (step.startsWith("open"))
            host.toolBar()->InitMainToolBar(tab);
        else if (step.startsWith("hide"))
            host.setVisible(tab, false);
        else if (step.startsWith("end"))
            host.deleteWindow();
        else
            host.setUsable(tab, step.startsWith("enable"));
    }
}

void actInLoop(TestHost &host, const QString &steps)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        act(host, steps);
        loop.quit();
    });
    loop.exec();
}

} // namespace

/** What a host does with the tabs when it is asked for the states of a new row. */
class TabAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheRowOfTheCheckedTab_data()
    {
        QTest::addColumn<QStringList>("tabs");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("tab");
        QTest::addColumn<bool>("isFolded");
        const QStringList plain{shown, checkable, checkable};
        const auto row = [](const char *name, const QStringList &tabs, const char *steps,
                            const char *answer, int tab, bool isFolded = false) {
            QTest::newRow(name) << tabs << steps << answer << tab << isFolded;
        };
        row("hides the tab on show", plain, "click 1", "hide 0", 1);
        row("hides the tab on show, not the next clicked", plain, "click 2", "hide 0", 2);
        row("disables the tab on show", plain, "click 2", "disable 0", 2);
        row("hides all others", plain, "click 2", "hide 0,hide 1", 2);
        row("sends all states", plain, "click 1", "enable 0,enable 1,enable 2", 1);
        row("sends all states twice", plain, "click 2", "enable 0,enable 1,enable 0,enable 2", 2);
        row("opens another tab", plain, "click 1", "click 2", 2);
        row("opens another tab by its position", plain, "click 1", "open 2", 2);
        row("opens the tab, too", plain, "click 1", "click 1", 1);
        row("opens another tab, then the tab", plain, "click 1", "click 2,click 1", 1);
        row("returns to the tab on show", plain, "click 1", "click 0", 0);
        row("leaves the tab on show, then returns", plain, "click 1", "enable 0,click 0", 0);
        row("opens the tab and folds it", plain, "click 1", "click 1,click 1", 1, true);
        row("opens the tab, then hides it", plain, "click 1", "click 1,hide 1", 2);
        row("is asked while the rows are folded", plain, "click 0,click 1", "click 1", 1);
        row("has left a tab and disables it", plain, "hide 0", "disable 0", 1);
        row("has left a tab and opens another", plain, "hide 0", "click 2", 2);
        row("has left a tab and leaves another", plain, "enable 0", "click 2,hide 2", 0);
        row("has opened the tab before", plain, "click 1,click 0,click 1", "", 1);
        row("has no tab on show at first", {checkable, checkable}, "click 0", "", 0);
        row("has no tab on show at first, opens one", {checkable, checkable}, "click 0", "click 0",
            0);
        row("has no tab on show at first, hides it", {checkable, checkable}, "click 0", "hide 0",
            1);

        const QStringList mixed{shown, uncheckable, checkable};
        row("has a tab that takes no check", mixed, "click 1", "", 1);
        row("opens a tab that takes no check twice", mixed, "click 1", "click 1", 1);
        row("hides the tab on show for it", mixed, "click 1", "hide 0", 1);
        row("returns from it", mixed, "click 1", "click 0", 0);
        row("opens another one instead of it", mixed, "click 1", "click 2", 2);
        row("leaves it", mixed, "click 1,hide 1", "", 2);
        row("begins with it", {shown, uncheckable + " checked='true'"}, "", "", 1);
    }

    void shouldShowTheRowOfTheCheckedTab()
    {
        QFETCH(QStringList, tabs);
        QFETCH(QString, steps);
        QFETCH(QString, answer);
        QFETCH(int, tab);
        QFETCH(bool, isFolded);
        for (const auto &react : {act, actInLoop}) {
            TestHost host(threeTabs(tabs));
            host.showEnabled();
            bool isAnswered = false;
            connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, [&] {
                if (!std::exchange(isAnswered, true))
                    react(host, answer);
            });
            act(host, steps);
            const auto *stack = host.find<QStackedWidget>("tabwidget");
            QCOMPARE(stack->currentIndex(), tab);
            QCOMPARE(!stack->isVisible(), isFolded);
            for (int i = 0; i < tabs.size(); ++i) {
                const QString name = QString::number(i);
                QCOMPARE(host.find<MRMainToolBar>(name)->isVisible(), i == tab && !isFolded);
                QCOMPARE(host.find<QPushButton>(name)->isChecked(),
                         i == tab && tabs.at(i).startsWith(checkable));
            }
        }
    }

    void shouldStandAWindowThatEnds()
    {
        for (const char *answer : {"end", "click 2,end", "hide 0,end"}) {
            for (const char *steps : {"click 1", "hide 0"}) {
                for (const auto &react : {act, actInLoop}) {
                    TestHost host(threeTabs({shown, checkable, checkable}));
                    host.showEnabled();
                    const QPointer<NewToolBar> toolBar = host.toolBar();
                    bool isAnswered = false;
                    connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, [&] {
                        if (!std::exchange(isAnswered, true))
                            react(host, answer);
                    });
                    act(host, steps);
                    QVERIFY(toolBar.isNull());
                }
            }
        }
    }
};

QTEST_MAIN(TabAnswersTest)
#include "tst_tabanswers.moc"
