// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/Rows.h"
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
    const QAction *face = shownCommand(host.find<QToolButton>(name));
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

void foldWhenAsked(TestHost &host)
{
    QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.window(),
                     [&host] { host.click("t_fold"); });
}

/** What the texts of another run, version or program say of the tab and of folding. */
const struct
{
    const char *name;
    QString text;
    bool isRead;
} texts[] = {
    {"nothing", "", false},
    {"another setting", "open;print;", false},
    {"no version", "mrtoolbar/;tab=second", false},
    {"a wrong version", "mrtoolbar/-1;tab=second", false},
    {"huge", "mrtoolbar/1;tab=second;x=" + QString(1 << 20, 'x'), false},
    {"a hidden tab", "mrtoolbar/1;tab=hidden", false},
    {"another description's tab", "mrtoolbar/1;tab=fourth", false},
    {"a tab that waits for its context", "mrtoolbar/1;tab=moment", false},
    {"another version", "mrtoolbar/7;tab=second", true},
    {"unknown fields", "mrtoolbar/1;new=1;;=;tab=second;x", true},
    {"wrong values", "mrtoolbar/1;folded=yes;faces=a,:,b:;shown=,,;tab=second", true},
    {"too long a name", "mrtoolbar/1;scale=" + QString(101, 'x') + ";tab=second", true},
};

/** What a user or a host does with the second tab open, and how many changes are told of. */
const struct
{
    const char *name;
    int changes;
    void (*act)(TestHost &host);
} acts[] = {
    {"a tab", 1, [](TestHost &host) { host.click("third"); }},
    {"a tab of a context", 0,
     [](TestHost &host) {
         host.facade().DoShowContextSlot("c", true);
         host.click("moment");
     }},
    {"in the host's answer while another state is restored", 1,
     [](TestHost &host) {
         foldWhenAsked(host);
         host.setSkin({{stateKey, "mrtoolbar/1;tab=third"}});
         QCOMPARE(stateOf(host).tab, QString("third"));
         QVERIFY(isFolded(host));
     }},
    {"folding", 1, [](TestHost &host) { host.click("t_fold"); }},
    {"folding by the tab, twice", 2,
     [](TestHost &host) {
         host.click("second");
         host.click("second");
     }},
    {"another face", 1, [](TestHost &host) { choose(host, "d_drop", "d_b"); }},
    {"the same face", 0, [](TestHost &host) { choose(host, "d_drop", "d_a"); }},
    {"another face and back", 2,
     [](TestHost &host) {
         choose(host, "d_drop", "d_b");
         choose(host, "d_drop", "d_a");
     }},
    {"quick access", 1, [](TestHost &host) { tick(host, "qbar_e_undo"); }},
    {"quick access by name", 1,
     [](TestHost &host) { host.setVisible("toolbar_quickaccessbar/undo", true); }},
    {"looks", 1,
     [](TestHost &host) {
         for (int i = 0; i < 2; ++i)
             host.setSkin({{"scheme", "dark"}, {"scalefactor", "1.25"}});
     }},
    {"a command", 0,
     [](TestHost &host) {
         host.action("two")->trigger();
         host.setUsable("two", false);
         host.setVisible("two", false);
         host.setChecked("two", true);
     }},
};

} // namespace

class tst_kept : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever the text.
    void shouldReadWhatItWrites()
    {
        KeptState state;
        state.tab = "a;b=c,d:e%20\n视图";
        state.isFolded = true;
        state.added = QStringList();
        state.faces = {{"v:zoom", "a,b"}, {"c", "d"}};
        state.scheme = "dark";
        for (int i = 0; i < 1000; ++i) {
            state.shown.append(QString::number(i).rightJustified(100, QChar(0x4e00)));
            state.hidden.append(state.shown.last());
        }
        const QString text = state.toText();
        QVERIFY(!text.contains('\n'));
        const KeptState read = KeptState::fromText(text).value();
        QCOMPARE(read.tab, state.tab);
        QCOMPARE(read.isFolded, state.isFolded);
        QCOMPARE(read.shown, QStringList(state.shown.mid(0, 100)));
        QVERIFY(read.added == QStringList() && !read.found);
        QCOMPARE(read.faces, state.faces);
        QCOMPARE(read.scheme, state.scheme);
        QCOMPARE(read.toText(), text);
    }

    void shouldTakeOfATextWhatFits_data() { addRows(texts); }
    void shouldTakeOfATextWhatFits()
    {
        TestHost host(described(), {{stateKey, rowOf(texts).text}});
        const QString tab = rowOf(texts).isRead ? "second" : "first";
        QCOMPARE(stateOf(host).tab, tab);
        QVERIFY(isFilled(host, tab) && host.find<QPushButton>(tab)->isChecked());
        QVERIFY(!isFolded(host) && stateOf(host).faces.isEmpty() && stateOf(host).scale.isEmpty());
    }

    void shouldTakeDamagedTexts()
    {
        const QString whole =
            "mrtoolbar/1;tab=second;folded=1;shown=qbar_f_open,b;hidden=c;"
            "added=one;found=two;faces=d_drop:d_b,g_drop:d_a;scale=1.5;scheme=dark";
        const QString damage = QString("%;:,=/1x\n") + QChar(0) + QChar(0xd800) + QChar(0x89c6);
        TestHost host = TestHost::enabled(described());
        QRandomGenerator random(1);
        for (int i = 0; i < 300; ++i) {
            QString text = whole;
            for (int j = random.bounded(4); j >= 0; --j)
                text.replace(random.bounded(int(text.size())), random.bounded(5),
                             damage.at(random.bounded(int(damage.size()))));
            host.setSkin({{stateKey, text}});
            const QString state = host.facade().GetToolBarState();
            const auto read = KeptState::fromText(state);
            QVERIFY2(read && read->toText() == state, qPrintable(text));
        }
    }

    // From one run to the next.
    void shouldKeepTheTabAndTheFolding()
    {
        TestHost host = TestHost::enabled(described());
        host.click("second");
        host.click("t_fold");
        TestHost next = nextRun(host);
        QVERIFY(isFilled(next, "second") && !isFilled(next, "first"));
        QVERIFY(next.find<QPushButton>("second")->isChecked());
        QVERIFY(isFolded(next) && next.find<QPushButton>("t_extend")->isVisible());
        next.click("first");
        QVERIFY(isFilled(next, "first") && !isFolded(next));
        QVERIFY(!isFolded(nextRun(next)));
    }

    void shouldKeepTheQuickAccessButtons()
    {
        TestHost host = TestHost::enabled(described());
        tick(host, "qbar_e_undo");
        tick(host, "qbar_f_open");
        TestHost next = nextRun(host);
        QCOMPARE(next.facade().GetQuickAccessButtonList(), QString("undo;"));
        tick(next, "qbar_e_undo");
        TestHost third = nextRun(next);
        QVERIFY(!third.find<QToolBar>("toolbar_quickaccessbar")->isVisible());
        tick(third, "qbar_f_open");
        QVERIFY(third.find<QToolBar>("toolbar_quickaccessbar")->isVisible());
    }

    void shouldKeepFacesOfRowsThatAreMadeLater()
    {
        const QList<QPair<QString, QString>> places{{"second", "d_drop"}, {"third", "g_drop"}};
        for (const auto &[tab, dropButton] : places) {
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
    }

    void shouldKeepTheLooksOfTheRunUnlessTheHostSaysOthers()
    {
        TestHost host =
            TestHost::enabled(described(), {{"scheme", "dark"}, {"scalefactor", "1.5"}});
        QVERIFY(stateOf(host).scheme.isEmpty() && stateOf(host).scale.isEmpty());
        host.setSkin({{"scheme", "contrast"}});
        host.facade().DoSetScaleSlot(1.25);
        host.facade().DoSetScaleSlot(99);

        TestHost next = nextRun(host);
        QCOMPARE(next.toolBar()->findChild<Appearance *>()->look().scheme, Scheme::Contrast);
        QCOMPARE(next.toolBar()->findChild<Scale *>()->factor(), 1.25F);
        QCOMPARE(stateOf(next).scheme, QString("contrast"));

        TestHost other = nextRun(
            next, {{"scheme", "light"}, {"scalefactor", "1"}, {"quickaccessbarbuttons", "undo;"}});
        QCOMPARE(other.toolBar()->findChild<Appearance *>()->look().scheme, Scheme::Light);
        QCOMPARE(other.toolBar()->findChild<Scale *>()->factor(), 1.0F);
        QCOMPARE(other.facade().GetQuickAccessButtonList(), QString("undo;"));
        QVERIFY(stateOf(other).scheme.isEmpty() && stateOf(other).scale.isEmpty());
    }

    // While it runs.
    void shouldTellOfEachChangeOnce_data() { addRows(acts); }
    void shouldTellOfEachChangeOnce()
    {
        TestHost host = TestHost::enabled(described());
        host.click("second");
        QSignalSpy changes(&host.facade(), &MRToolBar::DoStateChanged);
        const QString before = host.facade().GetToolBarState();
        rowOf(acts).act(host);
        QCoreApplication::processEvents();
        QCOMPARE(static_cast<int>(changes.size()), rowOf(acts).changes);
        if (changes.size() < 2)
            QVERIFY(changes.isEmpty() == (before == host.facade().GetToolBarState()));
    }

    void shouldRestoreWithoutACommandOrAReport()
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
        other.setSkin({{stateKey, after}});
        QCOMPARE(other.facade().GetToolBarState(), after);
        QCOMPARE(faceOf(other, "d_drop"), QString("d_b"));
        QVERIFY(isFolded(other));
        other.setSkin({{stateKey, before}});
        QVERIFY(!isFolded(other));
        QCOMPARE(other.facade().GetQuickAccessButtonList(), QString("open;"));
        QCOMPARE(commands.size() + changes.size(), 0);
    }

    void shouldLetTheHostDeleteTheWindowInItsAnswer()
    {
        using Act = void (*)(TestHost &);
        for (const Act act :
             {Act([](TestHost &host) { host.click("t_fold"); }),
              Act([](TestHost &host) { host.click("third"); }),
              Act([](TestHost &host) { choose(host, "d_drop", "d_b"); }),
              Act([](TestHost &host) { tick(host, "qbar_f_open"); }), Act([](TestHost &host) {
                  host.setSkin({{stateKey, "mrtoolbar/1;tab=third;folded=1"}});
              })}) {
            TestHost host = TestHost::enabled(described());
            host.click("second");
            for (const auto signal : {&MRToolBar::DoStateChanged, &MRToolBar::DoRequestAuthority})
                QObject::connect(&host.facade(), signal, &host.facade(),
                                 [&] { host.deleteWindow(); });
            act(host);
            QVERIFY(host.facade().GetToolBarState().isEmpty());
        }
    }
};

QTEST_MAIN(tst_kept)
#include "tst_kept.moc"
