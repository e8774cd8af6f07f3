// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Icons.h"
#include "tests/support/Pointer.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/HoverSheets.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>

using namespace Describe;
using HoverSheets::dropButton;
using HoverSheets::groupButton;

namespace {

MRMainToolBar *rowOf(const TestHost &host)
{
    return host.find<MRMainToolBar>(QStringLiteral("row"));
}

/** The contents of the row: "|" for a separator, "()" for the panel of a group, else the name. */
QString contents(const TestHost &host)
{
    QStringList names;
    const QList<QAction *> actions = rowOf(host)->actions();
    for (const QAction *action : actions) {
        const QString name = action->objectName().isEmpty() ? "()" : action->objectName();
        names.append(action->isSeparator() ? QStringLiteral("|") : name);
    }
    return names.join(QLatin1Char(' '));
}

/** Sheets for the pointer over arrow or body, and what they show at rest, pressed and checked. */
// The sheet "row, body" is left out: Qt cannot parse it, so it has no effect.
const struct
{
    const char *name;
    QString sheet;
    const char *colours;
} hoverSheets[]{
    {"row, arrow", dropButton(false, true, false, 1.0), "#eaeaea #eaeaea #eaeaea"},
    {"row, arrow, lum", dropButton(false, true, true, 1.0), "#ffffff #ffffff #ffffff"},
    {"row, body, lum", dropButton(false, false, true, 1.0), "#dbdee3 #b7b9be #c3c6ca"},
    {"menu, arrow", dropButton(true, true, false, 1.0), "#eaeaea #ffffff #eaeaea"},
    {"menu, body", dropButton(true, false, false, 1.0), "#ffffff #ffffff #ffffff"},
    {"menu, arrow, lum", dropButton(true, true, true, 1.0), "#ffffff #ffffff #c3c6ca"},
    {"menu, body, lum", dropButton(true, false, true, 1.0), "#dbdee3 #b7b9be #c3c6ca"},
    {"group, arrow", groupButton(true, false), "#eaeaea #ffffff #eaeaea"},
    {"group, body", groupButton(false, false), "#ffffff #ffffff #ffffff"},
    {"group, arrow, lum", groupButton(true, true), "#ffffff #ffffff #ffffff"},
    {"group, body, lum", groupButton(false, true), "#dbdee3 #b7b9be #c3c6ca"},
};

QString plain(const QString &text)
{
    return QStringLiteral("<button name='c' text='%1'/>").arg(text);
}

QString drop(const QString &attributes, const QString &entry)
{
    return QStringLiteral("<menu name='c' %1><menuitem action='e0' text='x'/>"
                          "<menuitem action='e1' text='%2'/></menu>")
        .arg(attributes, entry);
}

/** Controls with the name "c" and their widths in pixels at 96 dpi. */
const struct
{
    const char *name;
    QString control;
    double width;
} widths[]{
    {"1", plain("A"), 2.5 * 18.0},
    {"4", plain("ABCD"), 4 * 18.0},
    {"6", plain("ABCDEF"), 5 * 18.0},
    {"menu, no entries", "<menu name='c' text='ABCDEF'/>", 6 * 22.0 + 12.0},
    {"menu, long", drop("text='ABCDEF'", "e"), 4 * 18.0 + 12.0},
    {"entry shown", drop("text='A' index='1'", "abc"), 3 * 22.0 + 12.0},
    {"entry, long", drop("text='A' index='1'", "abcdef"), 4 * 22.0 + 12.0},
    // The text of the entry that is not in the menu any more does not widen the button.
    {"own entry", drop("text='A' index='2' withaction='true'", "abcd"), 2.5 * 22.0 + 12.0},
    {"beyond", drop("text='ABC' index='7'", "a"), 3 * 22.0 + 12.0},
};

} // namespace

/** The controls of a row: kinds, widths, texts, groups, and the sheets of split buttons. */
class ActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepSeparatorsBackUntilAVisibleControl()
    {
        const QMap<QString, QString> placed{{"||x|c", "x | c"},     {"|a|", "| a"},
                                            {"a|(x)b", "a () | b"}, {"a|(xb)c", "a | () c"},
                                            {"a|?b", "a | b"},      {"a!|!b", "a | b"}};
        const QMap<QChar, QString> elements{{'|', "<sperator/>"},
                                            {'(', "<buttongroup name='group'>"},
                                            {')', "</buttongroup>"},
                                            {'?', "<slider name='s' text='s'/>"},
                                            {'!', "<buttongroup/><extra/><button/>"},
                                            {'x', "<button name='x' text='x' visible='false'/>"}};
        for (auto described = placed.begin(); described != placed.end(); ++described) {
            QString controls;
            for (const QChar kind : described.key())
                controls += elements.value(kind, QStringLiteral("<button name='%1'/>").arg(kind));
            TestHost host(row(controls));
            QCOMPARE(described.key() + ": " + contents(host),
                     described.key() + ": " + described.value());
        }
    }

    void shouldSizeButtonsByTheirTexts_data() { addRows(widths); }

    void shouldSizeButtonsByTheirTexts()
    {
        const auto &[name, control, width] = rowOf(widths);
        TestHost host = TestHost::shown(row(control));
        QCOMPARE(rowOf(host)->widgetForAction(host.action("c"))->width(), host.scaled(width));
        const SkinChoice compact(lum);
        TestHost compactHost(row(control));
        const QWidget *widget = rowOf(compactHost)->widgetForAction(compactHost.action("c"));
        QCOMPARE(widget->minimumWidth() == widget->maximumWidth(), control.startsWith("<menu"));
    }

    void shouldMakeTheZoomBoxEditableOnAPercentage()
    {
        const QStringList percentages{"50%", "100%"};
        const QStringList mixed{"Fit", "100%"};
        const QList<std::tuple<QString, QStringList, bool>> boxes{
            {"name='v_zoom' editable='true'", percentages, true},
            {"name='v_zoom' editable='true' index='1'", mixed, false},
            {"name='V_ZOOM' index='2'", mixed, true},
            {"name='colours' editable='true' index='2'", mixed, false},
            {"name='zoom' editable='true'", {}, true}};
        for (const auto &[attributes, items, isEditable] : boxes) {
            QString children;
            for (const QString &item : items)
                children += choice("mode_" + item, item);
            TestHost host(row("<combobox text='c' " + attributes + ">" + children + "</combobox>"));
            const auto *box = rowOf(host)->findChild<QComboBox *>();
            QVERIFY2(box->isEditable() == isEditable, qPrintable(attributes));
            QCOMPARE(box->count(), items.size());
            QCOMPARE(box->itemData(1).toString(), items.isEmpty() ? "" : "mode_" + items.at(1));
            QCOMPARE(box->currentIndex() == 1, attributes.endsWith("index='2'"));
            QCOMPARE(box->parentWidget()->findChild<QLabel *>("prompt")->text(), QString("c"));
        }
    }

    void shouldShowTheDescribedEntryOnADropButton()
    {
        // The text, the current entry, and all entries.
        const QList<std::pair<QString, QStringList>> rows{
            {"text='M'", {"M  ", "", "one", "two"}},
            {"text='M' switchable='true'", {"M", "", "one", "two"}},
            {"text='M' index='2'", {"Two   ", "two", "one", "two"}},
            {"text='M' index='3'", {"M  ", "", "one", "two"}},
            // With withaction the button also takes the tooltip of the entry.
            {"index='2' withaction='true'", {"Two   ", "two", "one"}},
            {"index='1' withaction='true' tooltip='Tip'", {"One   ", "one", "two"}}};
        for (const auto &[attributes, wanted] : rows) {
            TestHost host = TestHost::enabled(row("<menu name='m' checkable='true' " + attributes
                                                  + "><menuitem action='one' text='One'/>"
                                                    "<menuitem action='two' text='Two'/></menu>"));
            auto *button = host.find<MRDropButton>("m");
            const QAction *current = button->GetCurrentAction();
            QStringList shown{button->text(), current ? current->objectName() : QString("")};
            const QList<QAction *> entries = button->menu()->actions();
            for (const QAction *entry : entries)
                shown.append(entry->objectName());
            QCOMPARE(shown, wanted);
            if (attributes.contains("withaction"))
                QVERIFY(button->toolTip().contains(attributes.contains("tip") ? "Tip" : "Two"));
            if (!current)
                continue;
            QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            QTest::mouseClick(button, Qt::LeftButton, {}, bodyOf(button));
            QCOMPARE(TestHost::texts(active), QStringList(current->objectName()));
        }
    }

    void init() { movePointerAway(); }

    void shouldShowItsOwnIconForActionsWithoutOne()
    {
        QAction bare(QStringLiteral("Bare"));
        bare.setCheckable(true);
        QAction drawn(colouredIcon(Qt::red), QStringLiteral("Drawn"));
        MRGroupButton button(nullptr);
        button.SetIcon(colouredIcon(Qt::green));
        button.SetDefaultAction(&bare);
        QCOMPARE(button.text(), QStringLiteral("Bare"));
        QCOMPARE(shownColour(button), QColor(Qt::green));
        bare.toggle();
        QVERIFY(button.isChecked() && shownColour(button) == Qt::green);
        bare.setEnabled(false);
        QCOMPARE(shownColour(button), QColor(Qt::green));
        button.SetDefaultAction(&drawn);
        QCOMPARE(shownColour(button), QColor(Qt::red));
        bare.toggle(); // The button is not connected to its former action any more.
        button.SetDefaultAction(nullptr);
        QCOMPARE(button.defaultAction(), &drawn);
        QCOMPARE(shownColour(button), QColor(Qt::red));
    }

    void shouldHighlightTheArrowOrTheBodyUnderThePointer()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("Entry"));
        for (const auto &[skin, hasMenu] :
             {std::pair{marodi, true}, {lum, true}, {marodi, false}}) {
            const SkinChoice choice(skin);
            QWidget window;
            window.resize(300, 200);
            MRGroupButton button(&window);
            button.setGeometry(60, 60, 100, 40);
            button.setPopupMode(QToolButton::MenuButtonPopup);
            button.setMenu(hasMenu ? &menu : nullptr);
            const QString initial = button.styleSheet();
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            // A button that is not checkable gets no hover sheet.
            QTest::mouseMove(&button, bodyOf(&button));
            QTest::qWait(50);
            QCOMPARE(button.styleSheet(), initial);

            button.setCheckable(true);
            QTest::mouseMove(&button, bodyOf(&button) + QPoint(1, 0));
            QTRY_COMPARE(button.styleSheet(), groupButton(false, skin == lum));
            button.setStyleSheet(QString());
            QTest::mouseMove(&button, arrowOf(&button)); // Only with a menu there is an arrow.
            QTRY_COMPARE(button.styleSheet(), groupButton(hasMenu, skin == lum));
            movePointerAway();
            QTRY_COMPARE(button.styleSheet(),
                         initial + QStringLiteral(" QToolButton:checked{background:#D3D3D3;}"));
        }
    }

    void shouldColourTheButtonUnderThePointer_data() { addRows(hoverSheets); }

    void shouldColourTheButtonUnderThePointer()
    {
        const auto &row = rowOf(hoverSheets);
        QMenu menu;
        QToolButton button;
        button.setPopupMode(QToolButton::MenuButtonPopup);
        button.setMenu(&menu);
        button.setCheckable(true);
        button.resize(90, 40);
        button.setStyleSheet(row.sheet);
        const auto colour = [&button] { return button.grab().toImage().pixelColor(10, 8).name(); };
        QString colours = colour();
        button.setDown(true);
        colours += ' ' + colour();
        button.setDown(false);
        button.setChecked(true);
        QCOMPARE(colours + ' ' + colour(), QString(row.colours));
    }

    void shouldLayAButtonGroupOutTwoToAColumn()
    {
        TestHost host(row(group("group", button("g0") + button("g1") + choice("g2", "g2")
                                             + button("g3") + menu("g4", item("e")))
                          + "<buttongroup/><extra/>"));
        const auto *grid = qobject_cast<QGridLayout *>(host.find<QWidget>("groupwidget")->layout());
        const QMap<QString, QPoint> places{
            {"g0", {0, 0}}, {"g1", {0, 1}}, {"g3", {1, 0}}, {"g4", {2, 0}}};
        for (auto place = places.begin(); place != places.end(); ++place) {
            QLayoutItem *item = grid->itemAtPosition(place->y(), place->x());
            QVERIFY(item);
            QCOMPARE(item->widget()->objectName(), place.key());
        }
        QCOMPARE(grid->count(), places.size()); // A skipped child leaves no empty cell.
        // Elements without attributes have no type, so no widget is made for them.
        QCOMPARE(host.find<MRMainToolBar>("row")->actions().size(), 1);
    }

    void shouldReportTheCommandsOfGroupButtons()
    {
        TestHost host = TestHost::enabled(row(
            group("group", button("shown") + button("hidden", "visible='false'")
                               + "<button name='bare'/>" + button("away", "available='false'"))));
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        for (const char *name : {"shown", "away"})
            host.click(name);
        QCOMPARE(TestHost::texts(active), QStringList("shown"));
        QVERIFY(!host.find<QToolButton>("hidden")->isVisible());
        for (const auto &[name, module] :
             {std::pair{"bare", "groupbutton_withouttext"}, {"shown", "groupbutton"}})
            QCOMPARE(host.find<QToolButton>(name)->property("module").toString(), QString(module));
    }

    void shouldShowTheEntryOnAGroupMenuButton()
    {
        // The attributes, and the text at first and after a choice.
        const QList<std::tuple<QString, QString, QString>> rows{
            {"index='2'", "Pick  ", "Pick  "},
            {"checkable='true'", "Pick", "Pick"},
            {"checkable='true' index='2'", "second", "second"},
            {"checkable='true' index='2' switchable='true'", "second", "one"}};
        for (const auto &[attributes, first, chosen] : rows) {
            TestHost host = TestHost::shown(
                row(group("group", menu("Pick", item("one") + item("second"), attributes))));
            const auto *pick = host.find<MRGroupButton>("Pick");
            QCOMPARE(pick->text(), first);
            const bool isSplit = attributes.startsWith("checkable");
            QCOMPARE(pick->popupMode() == QToolButton::MenuButtonPopup, isSplit);
            if (isSplit) // The width is that of the longest entry.
                QCOMPARE(pick->width(), host.scaled(6 * 24.0 + 12.0));
            host.action("one")->trigger();
            QCOMPARE(pick->text(), chosen);
        }
    }
};

QTEST_MAIN(ActionsTest)
#include "tst_actions.moc"
