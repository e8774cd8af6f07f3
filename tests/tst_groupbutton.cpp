// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Icons.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/HoverSheets.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/ObjectTree.h"

#include <QGridLayout>
#include <QMap>
#include <QMenu>

using namespace Describe;

/** The buttons of a group, and the hover sheets of all split buttons. */
class GroupButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QVERIFY(button.isChecked());
        QCOMPARE(shownColour(button), QColor(Qt::green));
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
        using Kind = std::pair<int, bool>;
        for (const auto &[skin, hasMenu] : {Kind{marodi, true}, {lum, true}, {marodi, false}}) {
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
            QTRY_COMPARE(button.styleSheet(), HoverSheets::groupButton(false, skin == lum));
            button.setStyleSheet(QString());
            QTest::mouseMove(&button, arrowOf(&button)); // Only with a menu there is an arrow.
            QTRY_COMPARE(button.styleSheet(), HoverSheets::groupButton(hasMenu, skin == lum));

            movePointerAway();
            QTRY_COMPARE(button.styleSheet(),
                         initial + QStringLiteral(" QToolButton:checked{background:#D3D3D3;}"));
        }
    }

    void shouldColourTheButtonUnderThePointer_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QStringList>("colours"); // At rest, pressed and checked.
        const QString white = "#ffffff";
        const QString grey = "#eaeaea";
        const QString hovered = "#dbdee3";
        const QString pressed = "#b7b9be";
        const QString checked = "#c3c6ca";
        const auto add = [](const char *name, const QString &sheet, const QStringList &colours) {
            QTest::newRow(name) << sheet << colours;
        };
        using HoverSheets::dropButton;
        using HoverSheets::groupButton;
        // The sheet "row, body" is left out: Qt cannot parse it, so it has no effect.
        add("row, arrow", dropButton(false, true, false, 1.0), {grey, grey, grey});
        add("row, arrow, lum", dropButton(false, true, true, 1.0), {white, white, white});
        add("row, body, lum", dropButton(false, false, true, 1.0), {hovered, pressed, checked});
        add("menu, arrow", dropButton(true, true, false, 1.0), {grey, white, grey});
        add("menu, body", dropButton(true, false, false, 1.0), {white, white, white});
        add("menu, arrow, lum", dropButton(true, true, true, 1.0), {white, white, checked});
        add("menu, body, lum", dropButton(true, false, true, 1.0), {hovered, pressed, checked});
        add("group, arrow", groupButton(true, false), {grey, white, grey});
        add("group, body", groupButton(false, false), {white, white, white});
        add("group, arrow, lum", groupButton(true, true), {white, white, white});
        add("group, body, lum", groupButton(false, true), {hovered, pressed, checked});
    }

    void shouldColourTheButtonUnderThePointer()
    {
        QFETCH(QString, sheet);
        QMenu menu;
        QToolButton button;
        button.setPopupMode(QToolButton::MenuButtonPopup);
        button.setMenu(&menu);
        button.setCheckable(true);
        button.resize(90, 40);
        button.setStyleSheet(sheet);
        const auto colour = [&button] { return button.grab().toImage().pixelColor(10, 8).name(); };
        QStringList colours(colour());
        button.setDown(true);
        colours.append(colour());
        button.setDown(false);
        button.setChecked(true);
        colours.append(colour());
        QTEST(colours, "colours");
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
        TestHost host(row(group("group", button("shown") + button("hidden", "visible='false'")
                                             + "<button name='bare'/>"
                                             + button("away", "available='false'"))));
        host.showEnabled();
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        for (const char *name : {"shown", "away"})
            host.click(name);
        QCOMPARE(TestHost::texts(active), QStringList("shown"));
        QVERIFY(!host.find<QToolButton>("hidden")->isVisible());
        const auto module = [&host](const char *name) {
            return host.find<QToolButton>(name)->property("module").toString();
        };
        QCOMPARE(module("bare"), QStringLiteral("groupbutton_withouttext"));
        QCOMPARE(module("shown"), QStringLiteral("groupbutton"));
    }

    void shouldShowTheEntryOnAGroupMenuButton_data()
    {
        QTest::addColumn<QStringList>("texts"); // At first and after a choice.
        QTest::newRow("index='2'") << QStringList{"Pick  ", "Pick  "};
        QTest::newRow("checkable='true'") << QStringList{"Pick", "Pick"};
        QTest::newRow("checkable='true' index='2'") << QStringList{"second", "second"};
        QTest::newRow("checkable='true' index='2' switchable='true'")
            << QStringList{"second", "one"};
    }

    void shouldShowTheEntryOnAGroupMenuButton()
    {
        const QString attributes = QTest::currentDataTag();
        TestHost host(row(group("group", menu("Pick", item("one") + item("second"), attributes))));
        host.show();
        const auto *pick = host.find<MRGroupButton>("Pick");
        QStringList texts(pick->text());
        const bool isSplit = attributes.startsWith("checkable");
        QCOMPARE(pick->popupMode() == QToolButton::MenuButtonPopup, isSplit);
        if (isSplit) // The width is that of the longest entry.
            QCOMPARE(pick->width(), host.scaled(6 * 24.0 + 12.0));
        host.action("one")->trigger();
        texts.append(pick->text());
        QTEST(texts, "texts");
    }

    void shouldFindDescendantsOnly()
    {
        QObject root;
        auto *first = new QObject(&root);
        auto *last = new QObject(&root);
        auto *grandchild = new QObject(last);
        QVERIFY(isChildren(&root, last));
        QVERIFY(isChildren(&root, grandchild));
        QVERIFY(!isChildren(first, grandchild));
        QVERIFY(!isChildren(&root, &root));
        QVERIFY(!isChildren(&root, nullptr));
        QVERIFY(!isChildren(nullptr, &root));
    }
};

QTEST_MAIN(GroupButtonTest)
#include "tst_groupbutton.moc"
