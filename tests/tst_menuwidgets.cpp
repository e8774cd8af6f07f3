// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/CCR_ToolTipWidget.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QBitmap>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include <limits>

namespace {

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

} // namespace

/** The menu button, the style of its menus, the bubble and the tooltip cards. */
class MenuWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPopItsMenuAtItsPlace_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<bool>("isAnchored");
        QTest::addColumn<bool>("isAnchorShown");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<QPoint>("place"); // In the button's own coordinates.
        QTest::newRow("marodi") << marodi << false << false << QPoint() << QPoint(0, 214);
        QTest::newRow("lum") << lum << false << false << QPoint() << QPoint(0, 220);
        QTest::newRow("hidden anchor") << lum << true << false << QPoint() << QPoint(0, 220);
        QTest::newRow("anchor") << lum << true << true << QPoint() << QPoint(154, 167);
        QTest::newRow("offset") << lum << false << false << QPoint(3, -7) << QPoint(3, 213);
    }

    void shouldPopItsMenuAtItsPlace()
    {
        QFETCH(int, skin);
        QFETCH(bool, isAnchored);
        QFETCH(bool, isAnchorShown);
        QFETCH(QPoint, offset);
        QFETCH(QPoint, place);
        const SkinChoice choice(skin);
        QWidget window;
        window.resize(500, 400);
        auto *anchor = new QWidget(&window);
        anchor->setGeometry(200, 150, 40, 26);
        anchor->setVisible(isAnchorShown);
        MRMenuButton button(&window, offset.x(), offset.y(), isAnchored ? anchor : nullptr);
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
        QCOMPARE(popped, button.mapToGlobal(place));
    }

    void shouldScaleTheIconsOfMenus()
    {
        CustomMenuStyle style(1);
        style.setSmallIconSize(7);
        QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize), 7 * QWidget().physicalDpiX() / 96);
        QCOMPARE(style.pixelMetric(QStyle::PM_ButtonMargin),
                 QProxyStyle().pixelMetric(QStyle::PM_ButtonMargin));
    }

    void shouldDrawOnlyTheArrowsOfSubMenus_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QRect>("arrow");
        const int subMenu = QStyleOptionMenuItem::SubMenu;
        QTest::newRow("entry") << int(QStyleOptionMenuItem::Normal) << Qt::LeftToRight << QRect();
        QTest::newRow("sub-menu") << subMenu << Qt::LeftToRight << QRect(179, 26, 18, 18);
        QTest::newRow("right to left") << subMenu << Qt::RightToLeft << QRect(23, 26, 18, 18);
    }

    void shouldDrawOnlyTheArrowsOfSubMenus()
    {
        QFETCH(int, type);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QRect, arrow);
        QStyleOptionMenuItem option;
        option.rect = QRect(20, 15, 180, 40);
        option.menuItemType = static_cast<QStyleOptionMenuItem::MenuItemType>(type);
        option.direction = direction;
        option.state = QStyle::State_Enabled | QStyle::State_Selected;
        option.text = "Text";

        QImage image(220, 70, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        CustomMenuStyle(16).drawControl(QStyle::CE_MenuItem, &option, &painter);
        painter.end();
        const QRect drawn = QRegion(QBitmap::fromImage(image.createAlphaMask())).boundingRect();
        QCOMPARE(drawn.isNull(), arrow.isNull());
        QVERIFY(arrow.isNull() || arrow.contains(drawn));
        QVERIFY(arrow.isNull() || drawn.contains(arrow.center()));
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
            QTRY_VERIFY_WITH_TIMEOUT(!bubble.isVisible(), 3000);
            QVERIFY2(clock.elapsed() >= 1890 * closing, "The bubble closed too early");
        }
    }

    void shouldPaintABubbleWithItsPointer_data()
    {
        QTest::addColumn<QList<QPoint>>("filled");
        QTest::addColumn<QList<QPoint>>("bare");
        const QPoint body(100, 60);
        const QPoint besideBody(12, 60);
        const QPoint upperEdge(150, 12);
        const QPoint leftTip(15, 10);
        const QPoint rightTip(35, 10);
        const QPoint besidePointer(70, 8);
        QTest::newRow("0") << QList<QPoint>{body, upperEdge, leftTip}
                           << QList<QPoint>{besideBody, rightTip, besidePointer};
        QTest::newRow("1") << QList<QPoint>{body, upperEdge, rightTip}
                           << QList<QPoint>{besideBody, leftTip, besidePointer};
        QTest::newRow("4") << QList<QPoint>{body, upperEdge} << QList<QPoint>{besideBody, leftTip};
    }

    void shouldPaintABubbleWithItsPointer()
    {
        QFETCH(QList<QPoint>, filled);
        QFETCH(QList<QPoint>, bare);
        const QImage image = bubbleImage(QString(QTest::currentDataTag()).toInt(), 10, {30, 20});
        const auto at = [](const QPoint &place) { return QStringLiteral("x=%1").arg(place.x()); };
        for (const QPoint &place : std::as_const(filled))
            QVERIFY2(image.pixelColor(place) == QColor(245, 245, 245), qPrintable(at(place)));
        for (const QPoint &place : std::as_const(bare))
            QVERIFY2(image.pixelColor(place).alpha() == 0, qPrintable(at(place)));
        QVERIFY2(image.pixelColor(30, 60).lightness() < 200, "There is no outline");
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
                QCOMPARE(image.pixelColor(100, 60), QColor(245, 245, 245));
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
            {"T;abcdefghij", title.arg("T") + line.arg("abcdefghij") + end},
            {"Open;", title.arg("Open") + end},
            {"T;text;more", title.arg("T") + line.arg("text") + end},
            {"%1 T;50%1", title.arg("%1 T") + line.arg("50%1") + end}};
        for (auto card = cards.begin(); card != cards.end(); ++card) {
            QWidget widget;
            QAction action(nullptr);
            NewToolBar::SetWidgetToolTip(&widget, card.key());
            NewToolBar::SetWidgetToolTip(&action, card.key());
            QCOMPARE(widget.toolTip(), card.value());
            QCOMPARE(action.toolTip(), card.value());
            NewToolBar::SetWidgetToolTip(&widget, "");
            QCOMPARE(widget.toolTip(), card.value());
        }
    }
};

QTEST_MAIN(MenuWidgetsTest)
#include "tst_menuwidgets.moc"
