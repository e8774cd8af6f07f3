#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/CCR_ToolTipWidget.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionMenuItem>

enum class Anchor
{
    None,
    Hidden,
    Visible
};
Q_DECLARE_METATYPE(Anchor)

/** The menu button, the style of its menus, the bubble and the tooltip cards. */
class MenuWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPopItsMenuAtItsPlace_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<Anchor>("anchorState");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<QPoint>("place"); // In the button's own coordinates.
        QTest::newRow("marodi") << marodi << Anchor::None << QPoint() << QPoint(0, 214);
        QTest::newRow("lum") << lum << Anchor::None << QPoint() << QPoint(0, 220);
        QTest::newRow("marodi, hidden anchor")
            << marodi << Anchor::Hidden << QPoint() << QPoint(0, 214);
        QTest::newRow("lum, hidden anchor") << lum << Anchor::Hidden << QPoint() << QPoint(0, 220);
        QTest::newRow("marodi, anchor")
            << marodi << Anchor::Visible << QPoint() << QPoint(154, 167);
        QTest::newRow("lum, anchor") << lum << Anchor::Visible << QPoint() << QPoint(154, 167);
        QTest::newRow("offset") << lum << Anchor::None << QPoint(3, -7) << QPoint(3, 213);
    }

    void shouldPopItsMenuAtItsPlace()
    {
        QFETCH(int, skin);
        QFETCH(Anchor, anchorState);
        QFETCH(QPoint, offset);
        QFETCH(QPoint, place);
        const SkinChoice choice(skin);
        QWidget window;
        window.resize(500, 400);
        auto *anchor = new QWidget(&window);
        anchor->setGeometry(200, 150, 40, 26);
        anchor->setHidden(anchorState == Anchor::Hidden);
        MRMenuButton button(&window, offset.x(), offset.y(),
                            anchorState == Anchor::None ? nullptr : anchor);
        button.setGeometry(300, 200, 60, 20);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseClick(&button, Qt::LeftButton); // There is no menu yet, and nothing happens.

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
        const QWidget screenProbe;
        for (const int size : {20, 16, 7}) {
            style.setSmallIconSize(size);
            QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize),
                     size * screenProbe.physicalDpiX() / 96);
        }
        QCOMPARE(style.pixelMetric(QStyle::PM_ButtonMargin),
                 QProxyStyle().pixelMetric(QStyle::PM_ButtonMargin));
    }

    void shouldDrawOnlyTheArrowsOfSubMenus_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QRect>("arrow");
        QTest::newRow("entry") << int(QStyleOptionMenuItem::Normal) << Qt::LeftToRight << QRect();
        QTest::newRow("separator")
            << int(QStyleOptionMenuItem::Separator) << Qt::LeftToRight << QRect();
        QTest::newRow("sub-menu") << int(QStyleOptionMenuItem::SubMenu) << Qt::LeftToRight
                                  << QRect(179, 26, 18, 18);
        QTest::newRow("sub-menu, right to left")
            << int(QStyleOptionMenuItem::SubMenu) << Qt::RightToLeft << QRect(23, 26, 18, 18);
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
        QRect drawn;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() > 0)
                    drawn |= QRect(x, y, 1, 1);
            }
        }
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
        QVERIFY(bubble.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(bubble.testAttribute(Qt::WA_TranslucentBackground));
        QElapsedTimer clock;
        clock.start();
        for (int closing = 1; closing <= 2; ++closing) {
            bubble.show();
            QTRY_VERIFY_WITH_TIMEOUT(!bubble.isVisible(), 3000);
            QVERIFY2(clock.elapsed() >= 1890 * closing, "It closed before its time");
        }
    }

    void shouldPaintABubbleWithItsPointer_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<bool>("isFilled");
        for (const int direction : {0, 1, 2, 4}) {
            const auto probe = [direction](const char *where, QPoint place, bool isFilled) {
                QTest::addRow("direction %d, %s", direction, where)
                    << direction << place << isFilled;
            };
            probe("body", {100, 60}, true);
            probe("left of the body", {15, 60}, false);
            probe("within the upper edge", {150, 12}, true);
            probe("tip on the left", {15, 10}, direction == 0 || direction == 2);
            if (direction != 4) {
                probe("tip on the right", {35, 10}, direction == 1);
                probe("beside the pointer", {70, 8}, false);
            }
        }
    }

    void shouldPaintABubbleWithItsPointer()
    {
        QFETCH(int, direction);
        QFETCH(QPoint, place);
        QFETCH(bool, isFilled);
        CCR_ToolTipWidget bubble(nullptr);
        bubble.resize(200, 100);
        bubble.setDerection(static_cast<CCR_ToolTipWidget::Derection>(direction));
        bubble.setStartPos(10);
        bubble.setTriangleInfo(30, 20);
        QImage image(bubble.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        bubble.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        QCOMPARE(image.pixelColor(place), isFilled ? QColor(245, 245, 245) : QColor(0, 0, 0, 0));
        QVERIFY2(image.pixelColor(30, 60).lightness() < 200, "There is no outline");
    }

    void shouldMakeACardOfATipWithADescription_data()
    {
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("shown");
        const QString title =
            "<html><head/><body><p><span style=\"font-weight:600;\">%1</span></p>";
        const QString line = "<pstyle=\"line-height:16px\">%1</p>";
        const QString end = "</body></head></html>";
        QTest::newRow("title alone") << "Open"
                                     << "Open";
        QTest::newRow("25 characters") << "Open;abcdefghijABCDEFGHIJ12345"
                                       << title.arg("Open") + line.arg("abcdefghij")
                                              + line.arg("ABCDEFGHIJ") + line.arg("12345") + end;
        QTest::newRow("20 characters")
            << "T;abcdefghijABCDEFGHIJ"
            << title.arg("T") + line.arg("abcdefghij") + line.arg("ABCDEFGHIJ") + end;
        QTest::newRow("no description") << "Open;" << title.arg("Open") + end;
        QTest::newRow("no title") << ";text" << title.arg("") + line.arg("text") + end;
        QTest::newRow("a third part") << "T;text;more" << title.arg("T") + line.arg("text") + end;
        QTest::newRow("marker in the text")
            << "%1 T;50%1" << title.arg("%1 T") + line.arg("50%1") + end;
    }

    void shouldMakeACardOfATipWithADescription()
    {
        QFETCH(QString, tip);
        QFETCH(QString, shown);
        QWidget widget;
        QAction action(nullptr);
        NewToolBar::SetWidgetToolTip(&widget, tip);
        NewToolBar::SetWidgetToolTip(&action, tip);
        QCOMPARE(widget.toolTip(), shown);
        QCOMPARE(action.toolTip(), shown);
        NewToolBar::SetWidgetToolTip(&widget, "");
        QCOMPARE(widget.toolTip(), shown);
    }
};

QTEST_MAIN(MenuWidgetsTest)
#include "tst_menuwidgets.moc"
