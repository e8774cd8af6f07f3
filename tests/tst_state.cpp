// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Rows.h"
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

/** The widgets that a reserved name stands for; none for other names. */
const struct
{
    const char *name;
    QStringList members;
} areas[]{
    {"toolbar_whole", {"mrtoolbar"}},
    {"toolbar_appbutton", {"menu_file", "ab_set"}},
    {"toolbar_toptoolbar", {"top_widget"}},
    {"toolbar_quickaccessbar", {"toolbar_quickaccessbar", "qt_set"}},
    {"toolbar_searchbar", {"st_input", "st_set"}},
    {"toolbar_addtional", {"h_help", "t_fold"}},
    {"toolbar_maintoolbar", {"first_row"}},
    {"toolbar_tabbar", {"first", "second", "third"}},
    {"toolbar_else", {}},
    {"x/toolbar_whole", {}},
};

const QString tabX = tab("x", {});
const QString additionalX = section("addtional", button("x"));
const QString appX = section("appbutton", menu("x", {}));
const QString quickX = section("quickaccessbar", button("qbar_x") + button("qbar_f_x"));
// Its action ignores states by name, so that the test sees those of the button alone.
const QString dropX = menu("x", {}, "available='false'");

/** The controls of the row on show, the tabs after it, other sections, and what stays enabled. */
const struct
{
    const char *name;
    QString row, tabs, sections;
    const char *left;
} lookUps[]{
    {"action, additional", button("x"), "", additionalX, ""},
    {"action, tab, application button", button("x"), tabX, appX, ""},
    {"additional before drop button, tab", dropX, tabX, additionalX, "TD"},
    {"drop button before tab", dropX, tabX, appX, "TP"},
    {"first quick entry before tab", "", tabX, quickX, "TQ"},
    {"group button before tab", group("g", button("x")), tabX, "", "T"},
    {"unavailable group button", group("g", button("x", "available='false'")), tabX, appX, ""},
};

} // namespace

/** The enabled and visible states by name, of areas and single controls, and their queries. */
class StateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAddressWholeAreasByReservedNames_data() { addRows(areas); }

    void shouldAddressWholeAreasByReservedNames()
    {
        QStringList members = rowOf(areas).members;
        TestHost host(everything());
        const QString name = QTest::currentDataTag();
        host.showEnabled();
        host.find<MRMainToolBar>("first")->setObjectName("first_row");
        const bool isArea = !members.isEmpty();
        if (!isArea) // None of these may change.
            members = QStringList{"mrtoolbar", "menu_file", "top_widget", "second", "first_row"};
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

    void shouldLookANameUpPlaceByPlace_data() { addRows(lookUps); }

    void shouldLookANameUpPlaceByPlace()
    {
        const auto &[name, rowX, tabs, sections, left] = rowOf(lookUps);
        TestHost host = TestHost::enabled(row(rowX, tabs) + sections);
        if (auto *drop = host.find<MRDropButton>("x"))
            drop->setEnabled(true);
        const QList<QAction *> entries = host.find<QToolBar>("toolbar_quickaccessbar")->actions();
        for (QAction *entry : entries)
            entry->setEnabled(true);
        host.setUsable("x", false);
        QCOMPARE(enabledPlaces(host), QString(left));
    }

    void shouldEnableTheRowsOnTheFirstReport()
    {
        TestHost host(everything());
        auto *stack = host.find<QStackedWidget>("tabwidget");
        auto *strip = host.find<QToolBar>("mrtoolbar");
        QVERIFY(!stack->isEnabled());
        strip->setEnabled(false);
        host.setUsable("two", false);
        QVERIFY(stack->isEnabledTo(strip));
        strip->setEnabled(true);
        QVERIFY(host.action("two")->isEnabled()); // A disabled toolbar ignores states by name.
        stack->setEnabled(false);
        host.setUsable("x", true);
        QVERIFY(!stack->isEnabled()); // Only the first report enables the rows.
    }

    void shouldSetOnlyTheFirstActionWhileTheRowIsDisabled()
    {
        TestHost host(row(button("h_info") + button("menu_h_info"))
                      + section("addtional", button("h_info")));
        host.enableRows();
        host.find<MRScrollWidget>(QString())->setEnabled(false);
        host.setUsable("h_info", false);
        QVERIFY(!host.action("h_info")->isEnabled() && host.action("menu_h_info")->isEnabled());
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
        TestHost host = TestHost::shown(everything());
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
        TestHost host = TestHost::enabled(
            row(comboBox("v_zoom", choice("m1", "1%") + choice("m2", "2%")) + button("v_zoomlist")
                + field("d_gotopage") + button("d_gotopageinput")));
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
        TestHost host(everything() + section("tabbar", tab("third", {})));
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        host.showEnabled();
        const auto enabled = [&host](const char *name) {
            return host.facade().GetCompositeEnable(name);
        };
        QVERIFY(enabled("two") && enabled("menu_file") && enabled("ab_set"));
        QVERIFY(!enabled("nothing") && !enabled("h_help") && !enabled("") && !enabled("f_open"));
        // The entry that opens a menu has the name of the menu.
        QVERIFY(enabled("menu_view"));
        host.setUsable("menu_view", false);
        QVERIFY(!enabled("menu_view"));
        // Of two tabs with one name the last one is queried.
        host.window().findChildren<QPushButton *>("third").last()->setEnabled(false);
        QVERIFY(!enabled("third") && enabled("first"));
        QVERIFY(!host.facade().GetControlCheckedState("two"));
        QVERIFY(host.facade().IsSupportByToolBar("v_a") && !host.facade().IsSupportByToolBar("a"));
        QVERIFY(!host.facade().IsSupportByToolBar("qbar_f_open"));
    }

    void shouldReportTheGeometryOnTheScreen()
    {
        TestHost host = TestHost::shown(everything());
        const QWidget *widget =
            host.find<MRMainToolBar>("first")->widgetForAction(host.action("two"));
        QTRY_VERIFY(widget->x() > 0);
        QCOMPARE(host.facade().GetControlGeometry("two"),
                 QRect(widget->mapToGlobal(QPoint()), widget->size()));
        for (const char *name : {"nothing", "three", "f_open", "qbar_f_open", ""})
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
