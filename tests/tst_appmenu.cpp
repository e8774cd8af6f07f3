// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "toolbar/state/QuickAccessSetting.h"
#include "toolbar/widgets/CCR_ToolTipWidget.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QApplication>
#include <QBitmap>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QToolBar>

#include <limits>

using namespace Describe;

namespace {

const QString setWithMenu = menu("set_menu", item("s_one"));
const QString fileItems =
    item("f_save") + item("f_open") + "<sperator/>" + menu("menu_help", item("h_info"));

QString appSection(const QString &otherRecords = {})
{
    return section("appbutton", menu("menu_file", fileItems) + otherRecords);
}

const QString settingKey = "quickaccessbarbuttons";
const QString checkable = "checkable='true'";
const QString hidden = checkable + " visible='false'";
const QString quickAccess = section(
    "quickaccessbar",
    button("qbar_f_open", checkable) + "<button action='qt_set' tooltip='Customise'/>"
        + button("qbar_e_undo", checkable) + button("own", hidden) + button("x_qbar_y", hidden));

QToolBar *barOf(const TestHost &host)
{
    return host.find<QToolBar>("toolbar_quickaccessbar");
}

template <typename Predicate>
QStringList namesOf(const QList<QAction *> &actions, Predicate isIncluded)
{
    QStringList names;
    for (const QAction *action : actions) {
        if ((action->*isIncluded)())
            names.append(action->objectName());
    }
    return names;
}

/** The place of a menu in the coordinates of its button. */
const struct
{
    const char *name;
    int skin;
    bool isAnchored, isAnchorShown;
    QPoint offset, place;
} menuPlaces[]{
    {"marodi", marodi, false, false, {}, {0, 214}},    {"lum", lum, false, false, {}, {0, 220}},
    {"hidden anchor", lum, true, false, {}, {0, 220}}, {"anchor", lum, true, true, {}, {154, 167}},
    {"offset", lum, false, false, {3, -7}, {3, 213}},
};

const QColor grey(245, 245, 245);

/** The picture of a bubble whose pointer begins at @p start and has that size. */
QImage bubbleImage(int direction, int start, const QSize &pointer)
{
    CCR_ToolTipWidget bubble(nullptr);
    bubble.resize(200, 100);
    bubble.setDerection(static_cast<CCR_ToolTipWidget::Derection>(direction));
    bubble.setStartPos(start);
    bubble.setTriangleInfo(pointer.width(), pointer.height());
    QImage image(bubble.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    bubble.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/** What the style draws of an entry at 20, 15 of 180 by 40 pixels. */
QRect drawnBy(QStyleOptionMenuItem::MenuItemType type, Qt::LayoutDirection direction)
{
    QStyleOptionMenuItem option;
    option.rect = QRect(20, 15, 180, 40);
    option.menuItemType = type;
    option.direction = direction;
    option.state = QStyle::State_Enabled | QStyle::State_Selected;
    option.text = "Text";
    QImage image(220, 70, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    CustomMenuStyle(16).drawControl(QStyle::CE_MenuItem, &option, &painter);
    painter.end();
    return QRegion(QBitmap::fromImage(image.createAlphaMask())).boundingRect();
}

} // namespace

/** The application button, the set button, the quick access bar, their menus, and the bubble. */
class AppMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLoadItsMenusOnceWhenFirstOpened()
    {
        TestHost host = TestHost::shown(appSection(setWithMenu + menu("third", item("m3"))));
        const QSignalSpy requests(&host.facade(), &MRToolBar::DoRequestAuthority);
        QVERIFY(!host.facade().IsSupportByToolBar("h_info"));
        for (int opening = 1; opening <= 2; ++opening) {
            qsizetype entries = 0;
            whenMenuPops([&entries](QMenu *menu) { entries = menu->actions().size(); });
            host.click("menu_file");
            QCOMPARE(entries, qsizetype(4));
            QCOMPARE(requests.count(), 1);
        }
        for (const char *name : {"h_info", "s_one"})
            QVERIFY2(host.facade().IsSupportByToolBar(name), name);
        QVERIFY2(!host.facade().IsSupportByToolBar("m3"), "Only the first two menus are used");
    }

    void shouldKeepNewEntriesDisabledUntilTheHostAnswers()
    {
        TestHost host(appSection() + row(button("f_open") + menu("tools", item("x_tool"))));
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        QVERIFY(!host.facade().GetCompositeEnable("f_save"));
        QVERIFY2(host.facade().GetCompositeEnable("f_open"), "A shared command lost its state");
        QVERIFY2(host.facade().GetCompositeEnable("x_tool"),
                 "A row's menu follows its description");
        host.setUsable("h_info", true);
        QVERIFY(host.facade().GetCompositeEnable("h_info"));
    }

    void shouldOpenTheRightMenuFromTheSetButton()
    {
        const QList<std::pair<QString, QString>> menusOfRecords{
            {"<button name='set' tooltip='Set'/>", "menu_file"}, {setWithMenu, "set_menu"}};
        for (const auto &[record, name] : menusOfRecords) {
            TestHost host = TestHost::shown(appSection(record));
            const QSignalSpy requests(&host.facade(), &MRToolBar::DoRequestAuthority);
            QString popped;
            whenMenuPops(
                [&popped](QMenu *menu) { popped = menu->isEmpty() ? "" : menu->objectName(); });
            host.click("ab_set");
            QCOMPARE(popped, name);
            QCOMPARE(requests.count(), 1);
            QVERIFY2(!host.find<QPushButton>("ab_set")->isChecked(),
                     "The button stays pressed after its menu has closed");
        }
        TestHost without = TestHost::shown(appSection());
        without.click("ab_set");
        QVERIFY(!QApplication::activePopupWidget());
    }

    void shouldShowAQuickButtonByTheSetting()
    {
        // The name, the setting, whether it is described and shown, and the list to be stored.
        const QList<std::tuple<QString, QString, bool, bool, QString>> rows{
            {"qbar_e_undo", "save;undo;", false, true, "undo;"},
            {"qbar_f_open", "a;open", false, true, "open;"},
            {"qbar_f_open", "Open;openall;", true, false, "open;"},
            // The prefix "qbar_", a prefix that occurs twice, and a prefix before another one.
            {"qbar_zoom", "zoom;", false, true, "zoom;"},
            {"qbar_f_aqbar_f_b", "ab;", false, true, "ab;"},
            {"qbar_e_qbar_x", "qbar_x;", false, true, "qbar_x;"},
            // Without a prefix at the start of the name, the description decides.
            {"own", "save;", true, true, ""},
            {"x_qbar_y", "y;", false, false, ""}};
        for (const auto &[name, setting, described, shown, listed] : rows) {
            QCOMPARE(QuickAccessSetting(setting).isShown(name, described), shown);
            QCOMPARE(QuickAccessSetting::join({name}), listed);
        }
    }

    void shouldShowAndTickTheSameQuickButtons()
    {
        const QList<std::pair<QString, QString>> lists{{"", "open;save;print;"},
                                                       {"undo;", "undo;"},
                                                       {"redo;nothing;open", "open;redo;"},
                                                       {";", ""}};
        for (const auto &[setting, list] : lists) {
            // The second time with the list that the first toolbar has returned.
            for (const QString &stored : {setting, list.isEmpty() ? setting : list}) {
                const auto host = TestHost::withRelease({{settingKey, stored}});
                QCOMPARE(host->facade().GetQuickAccessButtonList(), list);
                QCOMPARE(namesOf(host->find<QMenu>("qt_set")->actions(), &QAction::isChecked),
                         namesOf(barOf(*host)->actions(), &QAction::isVisible));
            }
        }
    }

    void shouldShowAndHideQuickButtonsByTheCustomiseMenu()
    {
        TestHost host = TestHost::shown(quickAccess, {{settingKey, "open;"}});
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        const QList<QAction *> entries = host.find<QMenu>("qt_set")->actions();
        QCOMPARE(entries.size(), qsizetype(5));
        QCOMPARE(entries.first()->text(), QString("Customise"));
        QVERIFY2(!entries.first()->isEnabled(), "The title is not disabled");
        const QList<std::pair<QString, QString>> steps{{"qbar_e_undo", "open;undo;"},
                                                       {"qbar_f_open", "undo;"},
                                                       {"qbar_e_undo", ""},
                                                       {"qbar_f_open", "open;"}};
        for (const auto &[clicked, list] : steps) {
            whenMenuPops([name = clicked](QMenu *menu) { clickEntry(menu, entryOf(menu, name)); });
            host.click("qt_set");
            QCOMPARE(host.facade().GetQuickAccessButtonList(), list);
            QVERIFY2(barOf(host)->isVisible() != list.isEmpty(),
                     "The bar is visible without buttons, or hidden with some");
        }
        QCOMPARE(active.count(), 0);
    }

    void shouldReportTheCommandOfAQuickButton()
    {
        const QList<std::pair<QString, QString>> commands{
            {"qbar_f_open", "f_open"}, {"own", "own"}, {"x_qbar_y", "y"}};
        for (const auto &[name, reported] : commands) {
            TestHost host(quickAccess);
            host.setVisible("toolbar_quickaccessbar/" + name, true);
            host.show();
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            const auto *bar = barOf(host);
            QWidget *widget = bar->widgetForAction(bar->findChild<QAction *>(name));
            QTest::mouseClick(widget, Qt::LeftButton);
            QVERIFY2(active.isEmpty(), "The host has not enabled the button yet");
            host.setUsable(name, true);
            QTest::mouseClick(widget, Qt::LeftButton);
            QCOMPARE(TestHost::texts(active), QStringList(reported));
        }
    }

    void shouldPopItsMenuAtItsPlace_data() { addRows(menuPlaces); }

    void shouldPopItsMenuAtItsPlace()
    {
        const auto &row = rowOf(menuPlaces);
        const SkinChoice choice(row.skin);
        QWidget window;
        window.resize(500, 400);
        auto *anchor = new QWidget(&window);
        anchor->setGeometry(200, 150, 40, 26);
        anchor->setVisible(row.isAnchorShown);
        MRMenuButton button(&window, row.offset.x(), row.offset.y(),
                            row.isAnchored ? anchor : nullptr);
        button.setGeometry(300, 200, 60, 20);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseClick(&button, Qt::LeftButton); // Without a menu a click has no effect.
        QMenu menu(&window);
        menu.addAction("Entry");
        button.SetMenu(&menu);
        QPoint popped;
        whenMenuPops([&popped](QMenu *openMenu) { popped = openMenu->pos(); });
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(popped, button.mapToGlobal(row.place));
    }

    void shouldScaleTheIconsOfMenusAndDrawTheArrowsOfSubMenusOnly()
    {
        CustomMenuStyle style(1);
        style.setSmallIconSize(7);
        QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize), 7 * QWidget().physicalDpiX() / 96);
        QCOMPARE(style.pixelMetric(QStyle::PM_ButtonMargin),
                 QProxyStyle().pixelMetric(QStyle::PM_ButtonMargin));
        QVERIFY(drawnBy(QStyleOptionMenuItem::Normal, Qt::LeftToRight).isNull());
        for (const auto &[direction, arrow] : {std::pair{Qt::LeftToRight, QRect(179, 26, 18, 18)},
                                               {Qt::RightToLeft, QRect(23, 26, 18, 18)}}) {
            const QRect drawn = drawnBy(QStyleOptionMenuItem::SubMenu, direction);
            QVERIFY(arrow.contains(drawn) && drawn.contains(arrow.center()));
        }
    }

    void shouldCloseABubbleAfterTwoSecondsAndAgain()
    {
        CCR_ToolTipWidget bubble(nullptr);
        bubble.resize(200, 100);
        bubble.setLabelText("Text");
        const int room = static_cast<int>(bubble.logicalDpiX() / 96.0 * 10);
        QCOMPARE(bubble.findChild<QLabel *>()->size(), QSize(200 - room, 100 - room));
        QElapsedTimer clock;
        clock.start();
        for (int closing = 1; closing <= 2; ++closing) {
            bubble.show();
            QTRY_VERIFY_WITH_TIMEOUT(!bubble.isVisible(), 20000);
            QVERIFY2(clock.elapsed() >= 1890 * closing, "The bubble closed too early");
        }
    }

    void shouldPaintABubbleWithItsPointer()
    {
        const QPoint upperEdge(150, 12), leftTip(15, 10), rightTip(35, 10);
        const QPoint besideBody(12, 60), besidePointer(70, 8);
        using Points = QList<QPoint>;
        const QList<std::tuple<int, Points, Points>> rows{
            {0, {upperEdge, leftTip}, {besideBody, rightTip, besidePointer}},
            {1, {upperEdge, rightTip}, {besideBody, leftTip, besidePointer}},
            {4, {upperEdge}, {besideBody, leftTip}}};
        for (const auto &[direction, filled, bare] : rows) {
            const QImage image = bubbleImage(direction, 10, {30, 20});
            for (const QPoint &place : filled + Points{{100, 60}})
                QCOMPARE(image.pixelColor(place), grey);
            for (const QPoint &place : bare)
                QCOMPARE(image.pixelColor(place).alpha(), 0);
            QVERIFY2(image.pixelColor(30, 60).lightness() < 200, "There is no outline");
        }
    }

    void shouldPaintABubbleOfAnyMeasure()
    {
        constexpr int least = std::numeric_limits<int>::min();
        constexpr int most = std::numeric_limits<int>::max();
        for (const int direction : {least, -1, 2, 99, most})
            QCOMPARE(bubbleImage(direction, 10, {30, 20}), bubbleImage(0, 10, {30, 20}));
        for (const int direction : {0, 1, 4}) {
            for (const int length : {least, -1000, 1000, most}) {
                // A pointer beyond the right end does not touch the body.
                const QImage image = bubbleImage(direction, length, {30, 20});
                QCOMPARE(image.pixelColor(100, 60), grey);
                QVERIFY(length < 0 || image.pixelColor(12, 3).alpha() == 0);
                bubbleImage(direction, 10, {length, length});
                bubbleImage(direction, length, {length, length});
            }
        }
    }

    void shouldMakeACardOfATipWithADescription()
    {
        const QString title =
            "<html><head/><body><p><span style=\"font-weight:600;\">%1</span></p>";
        const QString line = "<pstyle=\"line-height:16px\">%1</p>";
        const QString end = "</body></head></html>";
        const QMap<QString, QString> cards{
            {"Open", "Open"},
            {"Open;abcdefghijABCDEFGHIJ12345", title.arg("Open") + line.arg("abcdefghij")
                                                   + line.arg("ABCDEFGHIJ") + line.arg("12345")
                                                   + end},
            {"Open;", title.arg("Open") + end},
            {"T;text;more", title.arg("T") + line.arg("text") + end},
            {"%1 T;50%1", title.arg("%1 T") + line.arg("50%1") + end}};
        for (auto card = cards.begin(); card != cards.end(); ++card) {
            QWidget widget;
            QAction action(nullptr);
            NewToolBar::SetWidgetToolTip(&widget, card.key());
            NewToolBar::SetWidgetToolTip(&action, card.key());
            NewToolBar::SetWidgetToolTip(&widget, "");
            QCOMPARE(widget.toolTip(), card.value());
            QCOMPARE(action.toolTip(), card.value());
        }
    }
};

QTEST_MAIN(AppMenuTest)
#include "tst_appmenu.moc"
