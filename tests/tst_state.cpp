#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>

#include <algorithm>

namespace {

QString section(const QString &name, const QString &controls)
{
    return QStringLiteral("<toolbar_%1>%2</toolbar_%1>").arg(name, controls);
}

QString button(const QString &name, const QString &more = {})
{
    return QStringLiteral("<button name='%1' text='%1' %2/>").arg(name, more);
}

QString item(const QString &name)
{
    return QStringLiteral("<menuitem action='%1' text='%1' checkable='true'/>").arg(name);
}

QString tab(const QString &name, const QString &controls, const QString &more = {})
{
    return QStringLiteral("<tabbutton name='%1' text='%1' checkable='true' %3>%2</tabbutton>")
        .arg(name, controls, more);
}

/** One tab on show with these controls. */
QString row(const QString &controls)
{
    return section("tabbar", tab("row", controls, "checked='true'"));
}

/** "a", which is on show, and "b". */
QString twoTabs()
{
    return section("tabbar", tab("a", button("x"), "checked='true'") + tab("b", button("y")));
}

QString foldControls()
{
    return section("addtional", button("h_info") + button("t_fold"));
}

/** A toolbar that has every area. */
QString everything()
{
    return section("appbutton", "<menu name='menu_file' text='File'><menuitem action='f_exit'/>"
                                "</menu><menu name='ab_set' text='More'><menu name='menu_edit' "
                                "text='Edit'><menuitem action='e_undo'/></menu></menu>")
           + section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                           + button("qbar_f_print", "checkable='true'")
                                           + button("qt_set"))
           + section("tabbar",
                     tab("a", button("x") + button("y", "checkable='true'"), "checked='true'")
                         + tab("b", button("z")))
           + section("searchbar",
                     "<lineedit name='st_input'/>" + button("st_next") + button("st_set"))
           + foldControls();
}

QAction *action(const TestHost &host, const QString &name)
{
    return host.toolBar()->GetActionInTotal(name);
}

QStackedWidget *stack(const TestHost &host)
{
    return host.find<QStackedWidget>(QStringLiteral("tabwidget"));
}

/** Which of the places of "x" (tab and buttons) are enabled, a letter each. */
QString enabledPlaces(TestHost &host)
{
    QString places;
    const auto append = [&places](char letter, bool isEnabled) {
        if (isEnabled)
            places += QLatin1Char(letter);
    };
    const QList<QPushButton *> buttons = host.window().findChildren<QPushButton *>();
    append('A', action(host, "x") && action(host, "x")->isEnabled());
    for (const QPushButton *candidate : buttons) {
        if (candidate->objectName() == "x" && !qobject_cast<const MRMenuButton *>(candidate))
            append(candidate->property("tabindex").isValid() ? 'T' : 'X', candidate->isEnabled());
    }
    const auto *bar = host.find<QToolBar>("toolbar_quickaccessbar");
    const QList<QAction *> entries = bar->actions();
    for (const QAction *entry : entries)
        append('Q', entry->isEnabled());
    if (const auto *drop = host.find<MRDropButton>("x"))
        append('D', drop->isEnabled());
    if (const auto *app = host.find<MRMenuButton>("x"))
        append('P', app->isEnabled());
    return places;
}

} // namespace

class TestState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reservedNamesAddressWholeAreas_data()
    {
        QTest::addColumn<QStringList>("members");
        QTest::newRow("toolbar_whole") << QStringList("mrtoolbar");
        QTest::newRow("toolbar_appbutton") << QStringList{"menu_file", "ab_set"};
        QTest::newRow("toolbar_toptoolbar") << QStringList("top_widget");
        QTest::newRow("toolbar_quickaccessbar") << QStringList{"toolbar_quickaccessbar", "qt_set"};
        QTest::newRow("toolbar_searchbar") << QStringList{"st_input", "st_set"};
        QTest::newRow("toolbar_addtional") << QStringList{"h_info", "t_fold"};
        QTest::newRow("toolbar_maintoolbar") << QStringList("a_row");
        QTest::newRow("toolbar_tabbar") << QStringList{"a", "b"};
        QTest::newRow("toolbar_else") << QStringList();
        QTest::newRow("x/toolbar_whole") << QStringList();
    }

    void reservedNamesAddressWholeAreas()
    {
        QFETCH(QStringList, members);
        TestHost host(everything());
        const QString name = QTest::currentDataTag();
        host.setUsable("first", true);
        host.show();
        host.find<MRMainToolBar>("a")->setObjectName("a_row");
        const bool isArea = !members.isEmpty();
        if (!isArea) // None of these is to change.
            members = QStringList{"mrtoolbar", "menu_file", "top_widget", "b", "h_info", "a_row"};
        const auto holding = [&host, &members](bool (QWidget::*state)() const) {
            return std::count_if(members.begin(), members.end(), [&](const QString &member) {
                const auto *button = host.find<QPushButton>(member);
                return ((button ? button : host.find<QWidget>(member))->*state)();
            });
        };
        for (const bool on : {true, false, true}) {
            host.setVisible(name, on);
            QCOMPARE(holding(&QWidget::isVisible), on || !isArea ? members.size() : 0);
            QCOMPARE(host.facade().GetCompositeVisible(name), on && isArea);
        }
        for (const bool on : {true, false, true}) {
            host.setUsable(name, on);
            // Nothing is enabled by name any more once the whole toolbar has been disabled.
            const bool isOn = on && host.find<QToolBar>("mrtoolbar")->isEnabled();
            QCOMPARE(holding(&QWidget::isEnabled), isOn || !isArea ? members.size() : 0);
            QCOMPARE(host.facade().GetCompositeEnable(name), isOn && isArea);
        }
    }

    void aNameIsLookedUpPlaceByPlace_data()
    {
        QTest::addColumn<QString>("row");  // Controls of the row on show.
        QTest::addColumn<QString>("tabs"); // Behind it.
        QTest::addColumn<QString>("sections");
        QTest::addColumn<QString>("left"); // The places still enabled afterwards.
        const QString tabX = tab("x", {});
        const QString group =
            "<buttongroup name='g'><button name='x' available='%1'/></buttongroup>";
        const QString additional = section("addtional", button("x"));
        const QString app = section("appbutton", "<menu name='x' text='App'/>");
        const QString quick = section("quickaccessbar", button("qbar_x") + button("qbar_f_x"));
        // Its action does not follow by name, so that what happens to the button alone shows.
        const QString drop = "<menu name='x' text='Drop' available='false'/>";
        QTest::newRow("action, additional") << button("x") << "" << additional << "";
        QTest::newRow("action, tab, application button") << button("x") << tabX << app << "";
        QTest::newRow("additional before drop button, tab") << drop << tabX << additional << "TD";
        QTest::newRow("drop button before tab") << drop << tabX << app << "TP";
        QTest::newRow("first quick entry before tab") << "" << tabX << quick << "TQ";
        QTest::newRow("group button before tab") << group.arg("true") << tabX << ""
                                                 << "T";
        QTest::newRow("unavailable group button") << group.arg("false") << tabX << app << "";
    }

    void aNameIsLookedUpPlaceByPlace()
    {
        QFETCH(QString, row);
        QFETCH(QString, tabs);
        QFETCH(QString, sections);
        TestHost host(section("tabbar", tab("row", row, "checked='true'") + tabs) + sections);
        host.setUsable("first", true);
        host.show();
        if (auto *drop = host.find<MRDropButton>("x"))
            drop->setEnabled(true);
        const QList<QAction *> entries = host.find<QToolBar>("toolbar_quickaccessbar")->actions();
        for (QAction *entry : entries)
            entry->setEnabled(true);
        host.setUsable("x", false);
        QTEST(enabledPlaces(host), "left");
    }

    void theFirstReportEnablesTheRows()
    {
        TestHost host(everything());
        QVERIFY(!stack(host)->isEnabled());
        host.find<QToolBar>("mrtoolbar")->setEnabled(false);
        host.setUsable("x", false);
        QVERIFY(stack(host)->isEnabledTo(host.find<QToolBar>("mrtoolbar")));
        host.find<QToolBar>("mrtoolbar")->setEnabled(true);
        QVERIFY(action(host, "x")->isEnabled()); // A disabled toolbar takes no states by name.
        stack(host)->setEnabled(false);
        host.setUsable("x", true);
        QVERIFY(!stack(host)->isEnabled()); // Only the first one does.
    }

    void aDisabledRowLeavesOnlyTheFirstActionToTheHost()
    {
        TestHost host(row(button("h_info") + button("menu_h_info")) + foldControls());
        host.setUsable("first", true);
        host.find<MRScrollWidget>(QString())->setEnabled(false);
        host.setUsable("h_info", false);
        QVERIFY(!action(host, "h_info")->isEnabled());
        QVERIFY(action(host, "menu_h_info")->isEnabled());
        QVERIFY(host.find<QPushButton>("h_info")->isEnabled());
        host.setUsable("toolbar_addtional", false);
        QVERIFY(host.find<QPushButton>("h_info")->isEnabled());
    }

    void aNameWithASlashMatchesWhatContainsIt()
    {
        TestHost host(
            row(button("pen/red") + button("big pen/red") + button("pen") + button("menu_pen")));
        host.setUsable("pen/red", false);
        QVERIFY(!action(host, "pen/red")->isEnabled() && !action(host, "big pen/red")->isEnabled());
        QVERIFY(action(host, "pen")->isEnabled());
        host.setVisible("pen", false);
        QVERIFY(!action(host, "pen")->isVisible() && !action(host, "menu_pen")->isVisible());
        QVERIFY(action(host, "pen/red")->isVisible());
        QVERIFY(!host.facade().GetCompositeVisible("n/r")); // Asked for by its whole name.
        QVERIFY(host.facade().GetCompositeVisible("big pen/red"));
    }

    void quickAccessIsShownByItsOwnForms_data()
    {
        QTest::addColumn<QString>("shown"); // Of set button, open, print; capitals when ticked.
        QTest::newRow("toolbar_quickaccessbar/set") << "-OP";
        QTest::newRow("toolbar_quickaccessbar/f_open") << "s-P";
        QTest::newRow("toolbar_quickaccessbar/qbar") << "s--";
        QTest::newRow("toolbar_quickaccessbar/f_open/x") << "sOP";
        QTest::newRow("toolbar_quickaccessbarf_open") << "sOP";
        QTest::newRow("my toolbar_quickaccessbar/f_open") << "sOP";
        QTest::newRow("f_open") << "s-P"; // By its plain name the tick is left alone.
        QTest::newRow("qt_set") << "-OP";
    }

    void quickAccessIsShownByItsOwnForms()
    {
        TestHost host(everything());
        host.show();
        const auto shown = [&host] {
            const auto *set = host.find<QPushButton>("qt_set");
            QString text = set->isVisible() ? "s" : "-";
            const QList<QAction *> entries =
                host.find<QToolBar>("toolbar_quickaccessbar")->actions();
            for (const QAction *entry : entries) {
                const QString name = entry->objectName();
                const bool isTicked = set->menu()->findChild<QAction *>(name)->isChecked();
                const QChar letter = entry->isVisible() ? name.at(7) : QChar('-');
                text += isTicked ? letter.toUpper() : letter;
            }
            return text;
        };
        QCOMPARE(shown(), QStringLiteral("sOP"));
        host.setVisible(QTest::currentDataTag(), false);
        QTEST(shown(), "shown");
        host.setVisible(QTest::currentDataTag(), true);
        QCOMPARE(shown(), QStringLiteral("sOP"));
    }

    void checkingByNameIsSilent()
    {
        const QString tool = "group='tools' checkable='true'";
        TestHost host(row(button("pen", tool + " checked='true'") + button("ink", tool)
                          + button("off", tool + " usable='false'")
                          + button("hid", tool + " visible='false'") + button("menu_ink")));
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        QString name = "ink:red:thick";
        host.facade().DoSetControlCheckedStateSlot(name, true);
        QCOMPARE(name, QStringLiteral("ink"));
        QVERIFY(action(host, "ink")->isChecked() && !action(host, "pen")->isChecked());
        host.setChecked("ink", true); // Checked already: nothing to be silent about.
        for (const char *refusing : {"off", "hid"}) {
            host.setChecked(refusing, true);
            QVERIFY(action(host, refusing)->isChecked());
            QVERIFY(host.facade().GetControlCheckedState(refusing));
        }
        QVERIFY(!action(host, "off")->isEnabled() && !action(host, "ink")->isChecked());
        host.setChecked("hid", false);
        QVERIFY(!action(host, "hid")->isChecked());
        QVERIFY(active.isEmpty());
        action(host, "ink")->trigger();
        action(host, "menu_ink")->trigger(); // The same command once more.
        QCOMPARE(TestHost::texts(active), QStringList({"ink", "ink"}));
    }

    void aStateSetByNameLeavesAControlToItsNextStates()
    {
        TestHost host(row("<menu name='m' text='M' checkable='true'>" + item("one") + "</menu>"));
        host.setChecked("m", true);
        for (const bool usable : {false, true}) {
            host.setUsable("m", usable);
            QCOMPARE(host.facade().GetCompositeEnable("m"), usable);
        }
    }

    void anUnavailableControlReportsNothingAtFirst()
    {
        TestHost host(row(button("c", "available='false' checkable='true'") + button("menu_c")));
        host.setUsable("nothing", true);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        action(host, "menu_c")->trigger();
        QVERIFY(active.isEmpty());
        QVERIFY(action(host, "c")->isChecked());
        action(host, "menu_c")->trigger();
        QCOMPARE(TestHost::texts(active), QStringList("c"));
        QVERIFY(!action(host, "c")->isChecked());
        host.setUsable("c", true); // From now on it is like any other.
        QVERIFY(action(host, "c")->isEnabled());
    }

    void anyOtherStateEndsTheShapeTool_data()
    {
        QTest::addColumn<bool>("endsIt");
        QTest::newRow("tw_watermark_add") << false;
        QTest::newRow("tp_else") << false;
        QTest::newRow("my tp_tool:x") << false;
        QTest::newRow("tool") << true;
        QTest::newRow("unknown") << true;
    }

    void anyOtherStateEndsTheShapeTool()
    {
        const QString menu = "<menu name='%1' text='%1' checkable='true' switchable='true'>";
        TestHost host(row(menu.arg("tp_shape") + item("tp_arrow") + "</menu>" + menu.arg("pens")
                          + item("tool") + "</menu>"));
        const auto *shapes = host.find<MRDropButton>("tp_shape");
        const auto *pens = host.find<MRDropButton>("pens");
        for (const bool checked : {true, false}) {
            host.setChecked("tp_arrow", true);
            QVERIFY(shapes->isChecked()); // In line with its menu.
            host.setChecked(QTest::currentDataTag(), checked);
            QTEST(!shapes->isChecked(), "endsIt");
            QCOMPARE(pens->isChecked(), action(host, "tool")->isChecked());
        }
    }

    void theTabOnShowFoldsAndMovesOn_data()
    {
        QTest::addColumn<int>("current"); // Of three tabs.
        QTest::addColumn<QStringList>("disabled");
        QTest::addColumn<int>("shown");
        QTest::newRow("the next one") << 0 << QStringList() << 1;
        QTest::newRow("wraps around") << 2 << QStringList() << 0;
        QTest::newRow("the next one is disabled") << 0 << QStringList("1") << 0;
        QTest::newRow("no other one is usable") << 1 << QStringList{"0", "2"} << 1;
    }

    void theTabOnShowFoldsAndMovesOn()
    {
        QFETCH(int, current);
        QFETCH(QStringList, disabled);
        const QString name = QString::number(current);
        QString tabs;
        for (const char *number : {"0", "1", "2"})
            tabs += tab(number, button("command"), name == number ? "checked='true'" : "");
        for (const bool hides : {false, true}) {
            TestHost host(section("tabbar", tabs) + foldControls());
            host.setUsable("first", true);
            host.show();
            for (const QString &other : std::as_const(disabled))
                host.find<QPushButton>(other)->setEnabled(false);
            hides ? host.setVisible(name, false) : host.setUsable(name, false);
            QTEST(stack(host)->currentIndex(), "shown");
            QVERIFY(!host.find<MRMainToolBar>(name)->isVisible());
            const auto *tabButton = host.find<QPushButton>(name);
            QVERIFY(hides ? !tabButton->isVisible() : !tabButton->isEnabled());
            QVERIFY(!host.find<QPushButton>("t_fold")->isVisible());
            QVERIFY(host.find<QPushButton>("t_extend")->isVisible());
        }
    }

    void aTabThatWasLeftShowsItsRowAgainWhenItIsOpened()
    {
        TestHost host(twoTabs());
        host.show();
        host.setUsable("a", false);
        host.find<QPushButton>("a")->setEnabled(true);
        host.click("a");
        QVERIFY(host.find<MRMainToolBar>("a")->isVisible());
    }

    void enablingTheTabOnShowMovesOnToo()
    {
        TestHost host(twoTabs() + section("appbutton", "<menu name='a' text='App'/>"));
        host.find<MRMenuButton>("a")->setEnabled(false);
        for (const bool isFurther : {false, true}) { // Moving on ends the search for the name.
            host.setUsable("a", true);
            QCOMPARE(stack(host)->currentIndex(), 1);
            QCOMPARE(host.find<MRMenuButton>("a")->isEnabled(), isFurther);
        }
    }

    void aHostThatSendsAllStatesAgainStillMovesOn()
    {
        TestHost host(twoTabs() + foldControls());
        host.show();
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                [&host] { host.setUsable("a", false); });
        host.setUsable("a", false);
        QCOMPARE(stack(host)->currentIndex(), 1);
        QVERIFY(host.find<MRMainToolBar>("b")->isVisible());
    }

    void aDropButtonPassesOnFromAHiddenEntry_data()
    {
        QTest::addColumn<QString>("hidden"); // In this order.
        QTest::addColumn<int>("current");
        QTest::newRow("index='2' (another)") << "1" << 2;
        QTest::newRow("index='2'") << "2" << 3;
        QTest::newRow("index='3'") << "3" << 1;
        QTest::newRow("index='1'") << "21" << 3;
        QTest::newRow("index='1' (no other)") << "231" << 1;
        QTest::newRow("index='2' withaction='true'") << "2" << 1;
        QTest::newRow("index='2' withaction='true' (last)") << "12" << 3;
    }

    void aDropButtonPassesOnFromAHiddenEntry()
    {
        QFETCH(QString, hidden);
        const QString attributes = QString(QTest::currentDataTag()).section(" (", 0, 0);
        TestHost host(row("<menu name='m' checkable='true' " + attributes + ">" + item("1")
                          + item("2") + item("3") + "</menu>"));
        for (const QChar name : std::as_const(hidden))
            host.setVisible(name, false);
        const auto *button = host.find<MRDropButton>("m");
        QTEST(button->GetCurrentAction()->objectName().toInt(), "current");
    }

    void fieldsAreAddressedByTheirContainers()
    {
        const QString items = "<item action='m1' text='1%'/><item action='m2' text='2%'/>";
        TestHost host(row("<combobox name='v_zoom'>" + items + "</combobox>" + button("v_zoomlist")
                          + "<lineedit name='d_gotopage'/>" + button("d_gotopageinput")));
        host.setUsable("first", true);
        host.show();
        const QStringList names{"v_zoom", "v_zoomlist", "d_gotopage", "d_gotopageinput"};
        for (int i = 0; i < names.size(); i += 2) {
            const QString &name = names.at(i);
            const auto *field = host.find<QWidget>(name)->parentWidget();
            host.setUsable(name, false);
            QVERIFY(!field->isEnabled() && !host.facade().GetCompositeEnable(name));
            QVERIFY(action(host, names.at(i + 1))->isEnabled());
            host.setVisible(name, false);
            QVERIFY(!field->isVisible() && !host.facade().GetCompositeVisible(name));
            QVERIFY(!action(host, names.at(i + 1))->isVisible());
            host.setVisible(name, true);
            QVERIFY(field->isVisible() && action(host, names.at(i + 1))->isVisible());
            QVERIFY2(!field->isEnabled(), "Showing a field must not enable it");
            host.setUsable(name, true);
            QVERIFY(field->isEnabled());
        }
    }

    void additionalControlsBringBackTheFoldButtonInForce()
    {
        TestHost host(everything());
        host.show();
        const auto verify = [&host](bool folded) {
            host.setVisible("toolbar_addtional", false);
            host.setVisible("toolbar_addtional", true);
            QVERIFY(host.find<QPushButton>("h_info")->isVisible());
            QCOMPARE(host.find<QPushButton>("t_extend")->isVisible(), folded);
            QCOMPARE(host.find<QPushButton>("t_fold")->isVisible(), !folded);
        };
        verify(false);
        host.click("t_fold");
        verify(true);
        host.click("t_extend");
        host.setVisible("toolbar_maintoolbar", false);
        verify(true);
    }

    void questionsAnswerForSingleControls()
    {
        TestHost host(everything() + section("tabbar", tab("b", {})));
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        host.setUsable("first", true);
        host.show();
        const auto enabled = [&host](const char *name) {
            return host.facade().GetCompositeEnable(name);
        };
        QVERIFY(enabled("x") && enabled("menu_file") && enabled("ab_set"));
        QVERIFY(!enabled("nothing") && !enabled("h_info") && !enabled("") && !enabled("f_exit"));
        // The entry that opens a menu goes by the name of the menu.
        QVERIFY(enabled("menu_edit"));
        host.setUsable("menu_edit", false);
        QVERIFY(!enabled("menu_edit"));
        // Of two tabs of a name the last one answers.
        host.window().findChildren<QPushButton *>("b").last()->setEnabled(false);
        QVERIFY(!enabled("b") && enabled("a"));
        QVERIFY(!host.facade().GetControlCheckedState("x"));
        host.setChecked("y", true);
        QVERIFY(host.facade().GetControlCheckedState("y"));
        QVERIFY(host.facade().IsSupportByToolBar("e_undo"));
        QVERIFY(!host.facade().IsSupportByToolBar("undo"));
        QVERIFY(!host.facade().IsSupportByToolBar("qbar_f_open"));
    }

    void geometryIsThatOnTheScreen()
    {
        TestHost host(everything());
        host.show();
        const QWidget *face = host.find<MRMainToolBar>("a")->widgetForAction(action(host, "y"));
        QTRY_VERIFY(face->x() > 0);
        QCOMPARE(host.facade().GetControlGeometry("y"),
                 QRect(face->mapToGlobal(QPoint()), face->size()));
        for (const char *name : {"nothing", "z", "f_exit", "qbar_f_open", ""})
            QCOMPARE(host.facade().GetControlGeometry(name), QRect());
    }

    void resettingLeavesEnabledAndVisibleStatesAlone()
    {
        TestHost host(row(button("on", "checkable='true' checked='true'") + button("off")
                          + "<menu name='m' text='M' checkable='true' switchable='true'>"
                          + item("one")
                          + "</menu><lineedit name='d_gotopage'/>"
                            "<label name='d_totalpagelabel' text='/'/>"));
        host.setUsable("off", false);
        host.setVisible("off", false);
        host.setUsable("d_gotopage", false);
        host.facade().DoSetPageInfoSlot(3, 12);
        host.setChecked("one", true);
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.facade().DoResetToolbarSlot();
        QVERIFY(!action(host, "on")->isChecked() && !action(host, "one")->isChecked());
        QVERIFY(!host.find<MRDropButton>("m")->isChecked());
        QVERIFY(active.isEmpty());
        QVERIFY(!action(host, "off")->isVisible() && action(host, "on")->isEnabled());
        QVERIFY(!host.facade().GetCompositeEnable("off"));
        QVERIFY(!host.facade().GetCompositeEnable("d_gotopage"));
        QCOMPARE(host.find<QLineEdit>("d_gotopage")->text(), QString());
        QCOMPARE(host.find<QLabel>("d_totalpagelabel")->text(), QStringLiteral("/ "));
    }
};

QTEST_MAIN(TestState)
#include "tst_state.moc"
