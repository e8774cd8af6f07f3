// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QMenu>
#include <QStackedWidget>

#include <algorithm>

using namespace Describe;

namespace {

QString foldControls()
{
    return section("addtional", button("h_info") + button("t_fold"));
}

/** The sections of a toolbar with every area. */
QString everything()
{
    return section("appbutton", menu("menu_file", item("f_exit"))
                                    + menu("ab_set", menu("menu_edit", item("e_undo"))))
           + section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                           + button("qbar_f_print", "checkable='true'")
                                           + button("qt_set"))
           + section("tabbar",
                     tab("a", button("x") + button("y", "checkable='true'"), "checked='true'")
                         + tab("b", button("z")))
           + section("searchbar", field("st_input") + button("st_next") + button("st_set"))
           + foldControls();
}

/** A letter for each enabled control with the name "x". */
QString enabledPlaces(TestHost &host)
{
    QString places;
    const auto append = [&places](char letter, bool isEnabled) {
        if (isEnabled)
            places += QLatin1Char(letter);
    };
    const QList<QPushButton *> buttons = host.window().findChildren<QPushButton *>();
    append('A', host.action("x") && host.action("x")->isEnabled());
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

/** The enabled and visible states by name, of areas and single controls, and their queries. */
class StateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAddressWholeAreasByReservedNames_data()
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

    void shouldAddressWholeAreasByReservedNames()
    {
        QFETCH(QStringList, members);
        TestHost host(everything());
        const QString name = QTest::currentDataTag();
        host.showEnabled();
        host.find<MRMainToolBar>("a")->setObjectName("a_row");
        const bool isArea = !members.isEmpty();
        if (!isArea) // None of these may change.
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
            // While the whole toolbar is disabled, no state by name enables anything.
            const bool isOn = on && host.find<QToolBar>("mrtoolbar")->isEnabled();
            QCOMPARE(holding(&QWidget::isEnabled), isOn || !isArea ? members.size() : 0);
            QCOMPARE(host.facade().GetCompositeEnable(name), isOn && isArea);
        }
    }

    void shouldLookANameUpPlaceByPlace_data()
    {
        QTest::addColumn<QString>("row");  // Controls of the row on show.
        QTest::addColumn<QString>("tabs"); // The tabs after it.
        QTest::addColumn<QString>("sections");
        QTest::addColumn<QString>("left"); // The controls still enabled afterwards.
        const QString tabX = tab("x", {});
        const QString grouped = group("g", button("x"));
        const QString unavailable = group("g", button("x", "available='false'"));
        const QString additional = section("addtional", button("x"));
        const QString app = section("appbutton", menu("x", {}));
        const QString quick = section("quickaccessbar", button("qbar_x") + button("qbar_f_x"));
        // Its action ignores states by name, so that the test sees those of the button alone.
        const QString drop = menu("x", {}, "available='false'");
        QTest::newRow("action, additional") << button("x") << "" << additional << "";
        QTest::newRow("action, tab, application button") << button("x") << tabX << app << "";
        QTest::newRow("additional before drop button, tab") << drop << tabX << additional << "TD";
        QTest::newRow("drop button before tab") << drop << tabX << app << "TP";
        QTest::newRow("first quick entry before tab") << "" << tabX << quick << "TQ";
        QTest::newRow("group button before tab") << grouped << tabX << ""
                                                 << "T";
        QTest::newRow("unavailable group button") << unavailable << tabX << app << "";
    }

    void shouldLookANameUpPlaceByPlace()
    {
        QFETCH(QString, row);
        QFETCH(QString, tabs);
        QFETCH(QString, sections);
        TestHost host(section("tabbar", tab("row", row, "checked='true'") + tabs) + sections);
        host.showEnabled();
        if (auto *drop = host.find<MRDropButton>("x"))
            drop->setEnabled(true);
        const QList<QAction *> entries = host.find<QToolBar>("toolbar_quickaccessbar")->actions();
        for (QAction *entry : entries)
            entry->setEnabled(true);
        host.setUsable("x", false);
        QTEST(enabledPlaces(host), "left");
    }

    void shouldEnableTheRowsOnTheFirstReport()
    {
        TestHost host(everything());
        auto *stack = host.find<QStackedWidget>("tabwidget");
        auto *strip = host.find<QToolBar>("mrtoolbar");
        QVERIFY(!stack->isEnabled());
        strip->setEnabled(false);
        host.setUsable("x", false);
        QVERIFY(stack->isEnabledTo(strip));
        strip->setEnabled(true);
        QVERIFY(host.action("x")->isEnabled()); // A disabled toolbar ignores states by name.
        stack->setEnabled(false);
        host.setUsable("x", true);
        QVERIFY(!stack->isEnabled()); // Only the first report enables the rows.
    }

    void shouldSetOnlyTheFirstActionWhileTheRowIsDisabled()
    {
        TestHost host(row(button("h_info") + button("menu_h_info")) + foldControls());
        host.enableRows();
        host.find<MRScrollWidget>(QString())->setEnabled(false);
        host.setUsable("h_info", false);
        QVERIFY(!host.action("h_info")->isEnabled());
        QVERIFY(host.action("menu_h_info")->isEnabled());
        QVERIFY(host.find<QPushButton>("h_info")->isEnabled());
        host.setUsable("toolbar_addtional", false);
        QVERIFY(host.find<QPushButton>("h_info")->isEnabled());
    }

    void shouldSetEveryNameThatContainsANameWithASlash()
    {
        TestHost host(
            row(button("pen/red") + button("big pen/red") + button("pen") + button("menu_pen")));
        host.setUsable("pen/red", false);
        QVERIFY(!host.action("pen/red")->isEnabled() && !host.action("big pen/red")->isEnabled());
        QVERIFY(host.action("pen")->isEnabled());
        host.setVisible("pen", false);
        QVERIFY(!host.action("pen")->isVisible() && !host.action("menu_pen")->isVisible());
        QVERIFY(host.action("pen/red")->isVisible());
        QVERIFY(!host.facade().GetCompositeVisible("n/r")); // Queries need the whole name.
        QVERIFY(host.facade().GetCompositeVisible("big pen/red"));
    }

    void shouldShowQuickAccessButtonsByTheirNames()
    {
        // The visible ones of set, open and print; a capital if the entry is checked.
        const QMap<QString, QString> left{{"toolbar_quickaccessbar/set", "-OP"},
                                          {"toolbar_quickaccessbar/f_open", "s-P"},
                                          {"toolbar_quickaccessbar/qbar", "s--"},
                                          {"toolbar_quickaccessbar/x/f_open", "sOP"},
                                          {"toolbar_quickaccessbarf_open", "sOP"},
                                          {"my toolbar_quickaccessbar/f_open", "sOP"},
                                          {"f_open", "s-P"},
                                          {"qt_set", "-OP"}};
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
        for (auto form = left.begin(); form != left.end(); ++form) {
            host.setVisible(form.key(), false);
            QCOMPARE(form.key() + ": " + shown(), form.key() + ": " + form.value());
            host.setVisible(form.key(), true);
            QCOMPARE(shown(), QStringLiteral("sOP"));
        }
    }

    void shouldSetTheContainerOfAField()
    {
        TestHost host(row(comboBox("v_zoom", choice("m1", "1%") + choice("m2", "2%"))
                          + button("v_zoomlist") + field("d_gotopage")
                          + button("d_gotopageinput")));
        host.showEnabled();
        const QStringList names{"v_zoom", "v_zoomlist", "d_gotopage", "d_gotopageinput"};
        for (int i = 0; i < names.size(); i += 2) {
            const QString &name = names.at(i);
            const auto *field = host.find<QWidget>(name)->parentWidget();
            host.setUsable(name, false);
            QVERIFY(!field->isEnabled() && !host.facade().GetCompositeEnable(name));
            QVERIFY(host.action(names.at(i + 1))->isEnabled());
            host.setVisible(name, false);
            QVERIFY(!field->isVisible() && !host.facade().GetCompositeVisible(name));
            QVERIFY(!host.action(names.at(i + 1))->isVisible());
            host.setVisible(name, true);
            QVERIFY(field->isVisible() && host.action(names.at(i + 1))->isVisible());
            QVERIFY2(!field->isEnabled(), "Showing a field must not enable it");
            host.setUsable(name, true);
            QVERIFY(field->isEnabled());
        }
    }

    void shouldAnswerForSingleControls()
    {
        TestHost host(everything() + section("tabbar", tab("b", {})));
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        host.showEnabled();
        const auto enabled = [&host](const char *name) {
            return host.facade().GetCompositeEnable(name);
        };
        QVERIFY(enabled("x") && enabled("menu_file") && enabled("ab_set"));
        QVERIFY(!enabled("nothing") && !enabled("h_info") && !enabled("") && !enabled("f_exit"));
        // The entry that opens a menu has the name of the menu.
        QVERIFY(enabled("menu_edit"));
        host.setUsable("menu_edit", false);
        QVERIFY(!enabled("menu_edit"));
        // Of two tabs with one name the last one is queried.
        host.window().findChildren<QPushButton *>("b").last()->setEnabled(false);
        QVERIFY(!enabled("b") && enabled("a"));
        QVERIFY(!host.facade().GetControlCheckedState("x"));
        QVERIFY(host.facade().IsSupportByToolBar("e_undo"));
        QVERIFY(!host.facade().IsSupportByToolBar("undo"));
        QVERIFY(!host.facade().IsSupportByToolBar("qbar_f_open"));
    }

    void shouldReportTheGeometryOnTheScreen()
    {
        TestHost host(everything());
        host.show();
        const QWidget *widget = host.find<MRMainToolBar>("a")->widgetForAction(host.action("y"));
        QTRY_VERIFY(widget->x() > 0);
        QCOMPARE(host.facade().GetControlGeometry("y"),
                 QRect(widget->mapToGlobal(QPoint()), widget->size()));
        for (const char *name : {"nothing", "z", "f_exit", "qbar_f_open", ""})
            QCOMPARE(host.facade().GetControlGeometry(name), QRect());
    }

    void shouldCheckTheReportedBackgroundWithoutASignal()
    {
        const QStringList names{"default", "daytime", "nighttime", "eyeguard", "parchment"};
        QString controls;
        for (const QString &name : names)
            controls += button("background_" + name, "group='bggroup' checkable='true'");
        TestHost host(row(controls));
        const QSignalSpy backgrounds(&host.facade(), &MRToolBar::DoSetBackground);
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        for (const int style : {1, 7, 2, -1, 3, 4, 0}) { // Unknown values mean the default.
            host.facade().DoSetBackgroundSlot(static_cast<BackgroundStyle>(style));
            for (const QString &name : names)
                QCOMPARE(host.action("background_" + name)->isChecked(),
                         name == names.value(style, "default"));
        }
        QVERIFY(backgrounds.isEmpty() && active.isEmpty());
    }
};

QTEST_MAIN(StateTest)
#include "tst_state.moc"
