// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/state/KeptState.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QMenu>
#include <QRandomGenerator>
#include <QStackedWidget>
#include <QToolBar>

using namespace Describe;

namespace {

const QString stateKey = QStringLiteral("toolbarstate");

/** Two tabs with drop buttons, of which the first is described as open, and quick access. */
QString described()
{
    const QString entries = item("d_a") + item("d_b");
    const QString drop = "checkable='true' switchable='true' index='1'";
    return section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                         + button("qbar_e_undo", "checkable='true' visible='false'")
                                         + button("qt_set"))
           + section("tabbar", tab("first", button("one"), "checked='true'")
                                   + tab("second", menu("d_drop", entries, drop) + button("two"))
                                   + tab("third", group("g", menu("g_drop", entries, drop)))
                                   + tab("hidden", button("three"), "visible='false'")
                                   + tab("moment", button("four"), "context='c'"))
           + section("addtional", button("t_fold"));
}

KeptState stateOf(TestHost &host)
{
    return KeptState::fromText(host.facade().GetToolBarState()).value_or(KeptState());
}

/** A second run of the host with what the first one has stored. */
TestHost nextRun(TestHost &host, TestHost::SkinMap skin = {})
{
    skin.insert(stateKey, host.facade().GetToolBarState());
    return TestHost::enabled(described(), skin);
}

bool isFilled(const TestHost &host, const QString &row)
{
    return host.find<MRMainToolBar>(row)->isFilled();
}

bool isFolded(const TestHost &host)
{
    return host.find<QStackedWidget>("tabwidget")->isHidden();
}

QString faceOf(const TestHost &host, const QString &name)
{
    const auto *button = host.find<QToolButton>(name);
    const auto *dropButton = qobject_cast<const MRDropButton *>(button);
    const QAction *face = dropButton ? dropButton->GetCurrentAction() : button->defaultAction();
    return face ? face->objectName() : QString();
}

void chooseFrom(QMenu *menu, const QString &entry)
{
    menu->popup(QPoint(200, 300));
    clickEntries(menu, {entry});
}

void choose(TestHost &host, const QString &dropButton, const QString &entry)
{
    chooseFrom(host.find<QToolButton>(dropButton)->menu(), entry);
}

void tick(TestHost &host, const QString &quickButton)
{
    chooseFrom(host.find<QPushButton>("qt_set")->menu(), quickButton);
}

/** What a user or a host does. */
using Act = void (*)(TestHost &);

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_kept : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever the text.
    void shouldNotReadOtherTexts_data();
    void shouldNotReadOtherTexts();
    void shouldTakeDamagedTexts();

    // From one run to the next.
    void shouldOpenTheKeptTabOnly();
    void shouldOpenTheDescribedTabForOneThatIsNotShown_data();
    void shouldOpenTheDescribedTabForOneThatIsNotShown();
    void shouldKeepTheRowsFolded();
    void shouldKeepTheQuickAccessButtons();
    void shouldKeepFacesOfRowsThatAreMadeLater_data();
    void shouldKeepFacesOfRowsThatAreMadeLater();
    void shouldKeepTheLooksOfTheRunAlone();
    void shouldLetTheHostHaveTheLastWord();

    // While it runs.
    void shouldTellOfEachChangeOnce_data();
    void shouldTellOfEachChangeOnce();
    void shouldRestoreWithoutACommandOrAReport();
    void shouldLetTheHostDeleteTheWindowInItsAnswer();
};

void tst_kept::shouldNotReadOtherTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("another setting") << "open;print;";
    QTest::newRow("no version") << "mrtoolbar/;tab=t";
    QTest::newRow("a wrong version") << "mrtoolbar/-1;tab=t";
    QTest::newRow("huge") << "mrtoolbar/1;tab=t;x=" + QString(1 << 20, 'x');
}

void tst_kept::shouldNotReadOtherTexts()
{
    QFETCH(QString, text);
    QVERIFY(!KeptState::fromText(text));
    TestHost host(described(), {{stateKey, text}});
    QCOMPARE(stateOf(host).tab, QString("first"));
}

void tst_kept::shouldTakeDamagedTexts()
{
    const QString whole = "mrtoolbar/1;tab=second;folded=1;shown=qbar_f_open,b;hidden=c;added=one;"
                          "found=two;faces=d_drop:d_b,g_drop:d_a;scale=1.5;scheme=dark";
    const QString damage = QString("%;:,=/1x\n") + QChar(0) + QChar(0xd800) + QChar(0x89c6);
    TestHost host = TestHost::enabled(described());
    QRandomGenerator random(1);
    for (int i = 0; i < 300; ++i) {
        QString text = whole;
        for (int j = random.bounded(4); j >= 0; --j)
            text.replace(random.bounded(int(text.size())), random.bounded(5),
                         damage.at(random.bounded(int(damage.size()))));
        host.facade().DoSetSkinStyleSlot({{stateKey, text}});
        const QString state = host.facade().GetToolBarState();
        const auto read = KeptState::fromText(state);
        QVERIFY2(read && read->toText() == state, qPrintable(text));
    }
}

void tst_kept::shouldOpenTheKeptTabOnly()
{
    TestHost host = TestHost::enabled(described());
    host.click("second");
    TestHost next = nextRun(host);
    QVERIFY(isFilled(next, "second") && !isFilled(next, "first"));
    QVERIFY(next.find<QPushButton>("second")->isChecked());
    QVERIFY(!next.find<QPushButton>("first")->isChecked());
    QVERIFY(next.find<MRDropButton>("d_drop")->isVisible());
    next.click("first");
    QVERIFY(isFilled(next, "first"));
}

void tst_kept::shouldOpenTheDescribedTabForOneThatIsNotShown_data()
{
    QTest::addColumn<QString>("tab");
    QTest::newRow("hidden") << "hidden";
    QTest::newRow("another description's") << "fourth";
}

void tst_kept::shouldOpenTheDescribedTabForOneThatIsNotShown()
{
    QFETCH(QString, tab);
    TestHost host(described(), {{stateKey, "mrtoolbar/1;tab=" + tab}});
    QVERIFY(isFilled(host, "first"));
    QVERIFY(host.find<QPushButton>("first")->isChecked());
    QCOMPARE(stateOf(host).tab, QString("first"));
}

void tst_kept::shouldKeepTheRowsFolded()
{
    TestHost host = TestHost::enabled(described());
    host.click("t_fold");
    TestHost next = nextRun(host);
    QVERIFY(isFolded(next));
    QVERIFY(next.find<QPushButton>("t_extend")->isVisible());
    next.click("first");
    QVERIFY(!isFolded(next));
    QVERIFY(!isFolded(nextRun(next)));
}

void tst_kept::shouldKeepTheQuickAccessButtons()
{
    TestHost host = TestHost::enabled(described());
    tick(host, "qbar_e_undo");
    tick(host, "qbar_f_open");
    QCOMPARE(host.facade().GetQuickAccessButtonList(), QString("undo;"));

    TestHost next = nextRun(host);
    QCOMPARE(next.facade().GetQuickAccessButtonList(), QString("undo;"));
    tick(next, "qbar_e_undo");
    QVERIFY(!next.find<QToolBar>("toolbar_quickaccessbar")->isVisible());
    TestHost third = nextRun(next);
    QVERIFY(!third.find<QToolBar>("toolbar_quickaccessbar")->isVisible());
    tick(third, "qbar_f_open");
    QVERIFY(third.find<QToolBar>("toolbar_quickaccessbar")->isVisible());
}

void tst_kept::shouldKeepFacesOfRowsThatAreMadeLater_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QString>("dropButton");
    QTest::newRow("row") << "second"
                         << "d_drop";
    QTest::newRow("group") << "third"
                           << "g_drop";
}

void tst_kept::shouldKeepFacesOfRowsThatAreMadeLater()
{
    QFETCH(QString, tab);
    QFETCH(QString, dropButton);
    TestHost host = TestHost::enabled(described());
    host.click(tab);
    QVERIFY(stateOf(host).faces.isEmpty());
    choose(host, dropButton, "d_b");
    host.click("first");

    TestHost next = nextRun(host);
    QVERIFY(!isFilled(next, tab));
    QCOMPARE(stateOf(next).faces.value(dropButton), QString("d_b"));
    QSignalSpy commands(&next.facade(), &MRToolBar::DoActive);
    QSignalSpy changes(&next.facade(), &MRToolBar::DoStateChanged);
    next.click(tab);
    QCOMPARE(faceOf(next, dropButton), QString("d_b"));
    QCOMPARE(commands.size(), 0);
    QCOMPARE(changes.size(), 1); // The tab.
}

void tst_kept::shouldKeepTheLooksOfTheRunAlone()
{
    TestHost host = TestHost::enabled(described(), {{"scheme", "dark"}, {"scalefactor", "1.5"}});
    QVERIFY(stateOf(host).scheme.isEmpty() && stateOf(host).scale.isEmpty());
    host.facade().DoSetSkinStyleSlot({{"scheme", "contrast"}});
    host.facade().DoSetScaleSlot(1.25);
    host.facade().DoSetScaleSlot(99);

    TestHost next = nextRun(host);
    QCOMPARE(next.toolBar()->findChild<Appearance *>()->look().scheme, Scheme::Contrast);
    QCOMPARE(next.toolBar()->findChild<Scale *>()->factor(), 1.25F);
    QCOMPARE(stateOf(next).scheme, QString("contrast"));
}

void tst_kept::shouldLetTheHostHaveTheLastWord()
{
    TestHost host = TestHost::enabled(described());
    host.facade().DoSetSkinStyleSlot({{"scheme", "dark"}, {"scalefactor", "2"}});
    TestHost next = nextRun(
        host, {{"scheme", "light"}, {"scalefactor", "1"}, {"quickaccessbarbuttons", "undo;"}});
    QCOMPARE(next.toolBar()->findChild<Appearance *>()->look().scheme, Scheme::Light);
    QCOMPARE(next.toolBar()->findChild<Scale *>()->factor(), 1.0F);
    QCOMPARE(next.facade().GetQuickAccessButtonList(), QString("undo;"));
    QVERIFY(stateOf(next).scheme.isEmpty() && stateOf(next).scale.isEmpty());
}

void tst_kept::shouldTellOfEachChangeOnce_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("changes");
    const auto row = [](const char *name, int changes, Act act) {
        QTest::newRow(name) << act << changes;
    };
    row("a tab", 1, [](TestHost &host) { host.click("third"); });
    row("a tab of a context", 0, [](TestHost &host) {
        host.facade().DoShowContextSlot("c", true);
        host.click("moment");
    });
    row("in the host's answer while another state is restored", 1, [](TestHost &host) {
        QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.window(),
                         [&host] { host.click("t_fold"); });
        host.setSkin({{stateKey, "mrtoolbar/1;tab=third"}});
        QCOMPARE(stateOf(host).tab, QString("third"));
        QVERIFY(isFolded(host));
    });
    row("folding", 1, [](TestHost &host) { host.click("t_fold"); });
    row("folding by the tab, twice", 2, [](TestHost &host) {
        host.click("second");
        host.click("second");
    });
    row("another face", 1, [](TestHost &host) { choose(host, "d_drop", "d_b"); });
    row("the same face", 0, [](TestHost &host) { choose(host, "d_drop", "d_a"); });
    row("another face and back", 2, [](TestHost &host) {
        choose(host, "d_drop", "d_b");
        choose(host, "d_drop", "d_a");
    });
    row("quick access", 1, [](TestHost &host) { tick(host, "qbar_e_undo"); });
    row("quick access by name", 1,
        [](TestHost &host) { host.setVisible("toolbar_quickaccessbar/undo", true); });
    row("looks", 1, [](TestHost &host) {
        for (int i = 0; i < 2; ++i)
            host.facade().DoSetSkinStyleSlot({{"scheme", "dark"}, {"scalefactor", "1.25"}});
    });
    row("a command", 0, [](TestHost &host) {
        host.action("two")->trigger();
        host.setUsable("two", false);
        host.setVisible("two", false);
        host.setChecked("two", true);
    });
}

void tst_kept::shouldTellOfEachChangeOnce()
{
    QFETCH(Act, act);
    TestHost host = TestHost::enabled(described());
    host.click("second");
    QSignalSpy changes(&host.facade(), &MRToolBar::DoStateChanged);
    const QString before = host.facade().GetToolBarState();
    act(host);
    QCoreApplication::processEvents();
    QTEST(static_cast<int>(changes.size()), "changes");
    if (changes.size() < 2)
        QVERIFY(changes.isEmpty() == (before == host.facade().GetToolBarState()));
}

void tst_kept::shouldRestoreWithoutACommandOrAReport()
{
    TestHost host = TestHost::enabled(described());
    host.click("second");
    const QString before = host.facade().GetToolBarState();
    choose(host, "d_drop", "d_b");
    tick(host, "qbar_f_open");
    host.click("t_fold");
    const QString after = host.facade().GetToolBarState();

    TestHost other = TestHost::enabled(described());
    QSignalSpy commands(&other.facade(), &MRToolBar::DoActive);
    QSignalSpy changes(&other.facade(), &MRToolBar::DoStateChanged);
    other.facade().DoSetSkinStyleSlot({{stateKey, after}});
    QCOMPARE(other.facade().GetToolBarState(), after);
    QCOMPARE(faceOf(other, "d_drop"), QString("d_b"));
    QVERIFY(isFolded(other));
    other.facade().DoSetSkinStyleSlot({{stateKey, before}});
    QVERIFY(!isFolded(other));
    QCOMPARE(other.facade().GetQuickAccessButtonList(), QString("open;"));
    QCOMPARE(commands.size() + changes.size(), 0);
}

void tst_kept::shouldLetTheHostDeleteTheWindowInItsAnswer()
{
    using Signal = void (MRToolBar::*)();
    for (const Signal signal : {&MRToolBar::DoStateChanged, &MRToolBar::DoRequestAuthority}) {
        TestHost host = TestHost::enabled(described());
        QObject::connect(&host.facade(), signal, &host.facade(), [&] { host.deleteWindow(); });
        host.click("second");
    }
    for (const Act act : {Act([](TestHost &host) { host.click("t_fold"); }),
                          Act([](TestHost &host) { choose(host, "d_drop", "d_b"); }),
                          Act([](TestHost &host) { tick(host, "qbar_f_open"); })}) {
        TestHost host = TestHost::enabled(described());
        host.click("second");
        QObject::connect(&host.facade(), &MRToolBar::DoStateChanged, &host.facade(),
                         [&] { host.deleteWindow(); });
        act(host);
        QVERIFY(host.facade().GetToolBarState().isEmpty());
    }
    TestHost host = TestHost::enabled(described());
    QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                     [&] { host.deleteWindow(); });
    host.facade().DoSetSkinStyleSlot({{stateKey, "mrtoolbar/1;tab=third;folded=1"}});
}

QTEST_MAIN(tst_kept)
#include "tst_kept.moc"
