// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/widgets/SplitButton.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QToolBar>

namespace {

QString iconFile(const QString &skin, const QString &name)
{
    return QStringLiteral(":/mr_toolbar/Resources/%1/icons/%2.svg").arg(skin, name);
}

/** The icon as a control of @p side pixels shows it on a screen of that ratio. */
QImage painted(const QIcon &icon, int side, qreal ratio)
{
    QImage image(QSize(side, side) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, QRect(0, 0, side, side));
    return image;
}

const TestHost::SkinMap night{
    {"[MainColor]", "#20262C"},          {"[MainColor.checked]", "#3D4853"},
    {"[ToolBarBgColor]", "#30363C"},     {"[MainToolHoverColor]", "#424A52"},
    {"[MainToolCheckColor]", "#59636D"}, {"[MainToolPressColor]", "#707C88"},
    {"[Color.checked]", "#59636D"},      {"[MainColor.hover]", "#424A52"},
    {"[MainColor.pressed]", "#707C88"},  {"rgb(195, 198, 202)", "#59636D"}};

/** A tab, the application's button and a row with one control of each kind. */
QString oneOfEach()
{
    using namespace Describe;
    const QString checked = "checkable='true' checked='true'";
    const QString entries = item("first") + item("second");
    return section("appbutton", "<menu name='menu_file' text='file' icon='icon16/menu.svg'>"
                                    + entries + "</menu>")
           + row(button("b_plain", "icon='icon24/Find.svg' " + checked)
                 + menu("m_split", entries, "switchable='true' " + checked)
                 + menu("m_plain", entries)
                 + comboBox("v_zoom", choice("vzmode_10p", "10%"), "editable='true'"))
           + section("searchbar", button("st_next") + optionsButton("st_set", entries))
           + section("addtional", "<button name='e_preference' " + checked + "/>");
}

QImage pictureOf(QWidget *control)
{
    QTest::qWait(20);
    return control->window()
        ->grab(QRect(control->mapTo(control->window(), QPoint()), control->size()))
        .toImage();
}

/** The colour of the control's ground, beside its middle where no text or icon is. */
QColor groundOf(QWidget *control)
{
    return pictureOf(control).pixelColor(5, control->height() / 2);
}

void pointAt(QWidget *control)
{
    // Not on an arrow, nor beside a button that keeps a margin.
    const QPoint place(control->width() / 3, control->height() / 2);
    QCursor::setPos(control->mapToGlobal(place));
    QTest::mouseMove(control, place);
    QTRY_VERIFY(control->underMouse());
}

/** How far the most distinct pixel of an area is from its ground, from 0 to 255. */
int strongestMark(const QWidget *control, const QRect &area)
{
    const QImage image = control->window()->grab().toImage();
    const QRect place(control->mapTo(control->window(), area.topLeft()), area.size());
    const int ground = qGray(image.pixel(place.topLeft()));
    int strongest = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            strongest = qMax(strongest, qAbs(qGray(image.pixel(x, y)) - ground));
    }
    return strongest;
}

/** Whether no text ends just before the part of the button that opens its menu, or in it. */
bool isClearBeforeArrow(const QToolButton *button)
{
    QStyleOptionToolButton option;
    option.initFrom(button);
    option.features = QStyleOptionToolButton::MenuButtonPopup;
    option.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    const QRect arrow = button->style()->subControlRect(QStyle::CC_ToolButton, &option,
                                                        QStyle::SC_ToolButtonMenu, button);
    QTest::qWait(20);
    const QRect gap(arrow.left() - 1, button->height() / 4, 1, button->height() / 2);
    return arrow.isValid() && strongestMark(button, gap) < 60;
}

void addSkins()
{
    QTest::addColumn<int>("skin");
    QTest::newRow("marodi") << marodi;
    QTest::newRow("lum") << lum;
}

} // namespace

/** What the eye notices first: lines on their pixels, and states that can be told apart. */
class CrispTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeTheDrawingOfTheNearestSize_data()
    {
        QTest::addColumn<QString>("skin");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<int>("side");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QString>("drawn");
        QTest::newRow("own size") << "marodi"
                                  << "icon24/Copy" << 24 << 1.0 << "icon24/Copy";
        QTest::newRow("smaller") << "marodi"
                                 << "icon24/Copy" << 16 << 1.0 << "icon16/Copy";
        QTest::newRow("larger") << "marodi"
                                << "icon16/Copy" << 24 << 1.0 << "icon24/Copy";
        QTest::newRow("dense") << "marodi"
                               << "icon24/Copy" << 16 << 2.0 << "icon16/Copy";
        QTest::newRow("dense row") << "lum"
                                   << "icon16/Find" << 24 << 2.0 << "icon24/Find";
        QTest::newRow("one and a half") << "lum"
                                        << "icon16/Find" << 16 << 1.5 << "icon24/Find";
        QTest::newRow("menu") << "lum"
                              << "icon16/Save" << 20 << 1.0 << "icon20/Save";
        QTest::newRow("nearest") << "lum"
                                 << "icon24/Find" << 18 << 1.0 << "icon16/Find";
        QTest::newRow("no other") << "marodi"
                                  << "icon24/Stamp" << 36 << 1.0 << "icon24/Stamp";
        QTest::newRow("white for dark") << "marodi"
                                        << "icon24/Redo" << 16 << 1.0 << "icon24/Redo";
        QTest::newRow("dark for white") << "marodi"
                                        << "icon16/Redo" << 24 << 1.0 << "icon16/Redo";
    }

    void shouldTakeTheDrawingOfTheNearestSize()
    {
        QFETCH(QString, skin);
        QFETCH(QString, asked);
        QFETCH(int, side);
        QFETCH(qreal, ratio);
        QFETCH(QString, drawn);
        const QImage expected = painted(QIcon(iconFile(skin, drawn)), side, ratio);
        const QIcon icon = skinIcon(iconFile(skin, asked));
        QCOMPARE(painted(icon, side, ratio), expected);
        // Widgets ask for pictures of physical pixels instead.
        const int pixels = qRound(side * ratio);
        QCOMPARE(painted(icon.pixmap(pixels), pixels, 1.0),
                 painted(QIcon(iconFile(skin, drawn)), pixels, 1.0));
    }

    void shouldDarkenWhatIsCheckedUnderThePointer_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<TestHost::SkinMap>("map");
        QTest::newRow("marodi") << marodi << TestHost::SkinMap{};
        QTest::newRow("marodi, dark") << marodi << night;
        QTest::newRow("lum") << lum << TestHost::SkinMap{};
        QTest::newRow("lum, dark") << lum << night;
    }

    void shouldDarkenWhatIsCheckedUnderThePointer()
    {
        QFETCH(int, skin);
        QFETCH(TestHost::SkinMap, map);
        const SkinChoice choice(skin);
        TestHost host(oneOfEach(), map);
        host.showEnabled();
        const auto *row = host.find<QToolBar>("row");
        QWidget *const plain = row->widgetForAction(host.action("b_plain"));
        for (QWidget *control : {plain, static_cast<QWidget *>(host.shownTabs().first()),
                                 host.find<QWidget>("e_preference")}) {
            movePointerAway();
            QTRY_VERIFY(!control->underMouse());
            const QColor resting = groundOf(control);
            pointAt(control);
            const QColor hovered = groundOf(control);
            const QByteArray name = control->objectName().toUtf8();
            QVERIFY2(hovered.lightness() < resting.lightness() - 3, name);
            QVERIFY2(qAbs(hovered.hslHue() - resting.hslHue()) < 10, name);
        }
    }

    void shouldDimEveryPartOfADisabledControl_data() { addSkins(); }

    void shouldDimEveryPartOfADisabledControl()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        TestHost host(oneOfEach());
        host.showEnabled();
        movePointerAway();
        const QWidgetList controls{
            host.find<QToolButton>("m_split"), host.find<QToolButton>("m_plain"),
            host.find<QComboBox>("v_zoom"), host.find<QPushButton>("menu_file")};
        for (QWidget *control : controls) {
            const QByteArray name = control->objectName().toUtf8();
            // An arrow by the trailing edge; text begins further in.
            const bool isText = control->objectName() == "menu_file";
            const QRect whole = control->rect().adjusted(6, 3, -4, -3);
            const QRect area = isText ? whole : whole.adjusted(whole.width() - 10, 0, 0, 0);
            control->setEnabled(true);
            const int enabled = strongestMark(control, area);
            control->setEnabled(false);
            const int disabled = strongestMark(control, area);
            QVERIFY2(enabled > 80, name);
            QVERIFY2(disabled > enabled / 4 && disabled < enabled * 2 / 3, name);
        }
    }

    void shouldShowNoHoverOnAButtonThatShowsNothing_data() { addSkins(); }

    void shouldShowNoHoverOnAButtonThatShowsNothing()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        TestHost host(oneOfEach());
        host.showEnabled();
        for (const char *name : {"ab_set", "menu_file"}) {
            auto *button = host.find<QPushButton>(name);
            movePointerAway();
            QTRY_VERIFY(!button->underMouse());
            const QImage resting = pictureOf(button);
            pointAt(button);
            const bool isBlank = button->icon().isNull() && button->text().isEmpty();
            QCOMPARE(pictureOf(button) == resting, isBlank);
        }
    }

    void shouldDrawTheFocusAlongWhatTheButtonShows()
    {
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            TestHost host(oneOfEach());
            host.showEnabled();
            movePointerAway();
            // One keeps a margin on its left, the other is round: both leave their corners alone.
            QPushButton *button = host.shownTabs().first();
            if (skin == marodi)
                button = host.find<QPushButton>("menu_file");
            button->clearFocus();
            const QImage resting = pictureOf(button);
            host.window().setAttribute(Qt::WA_KeyboardFocusChange);
            button->setFocus(Qt::TabFocusReason);
            const QImage focused = pictureOf(button);
            QVERIFY(focused != resting);
            const int top = skin == marodi ? button->height() / 2 : 0;
            QCOMPARE(focused.pixelColor(0, top), resting.pixelColor(0, top));
            QCOMPARE(focused.pixelColor(2, top + 2), resting.pixelColor(2, top + 2));
        }
    }

    void shouldKeepTheLabelClearOfItsArrow_data() { addSkins(); }

    void shouldKeepTheLabelClearOfItsArrow()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        using namespace Describe;
        const QString icon = "icon='icon24/Find.svg' ";
        const QString split = "<menu name='%1' text='页页' icon='icon24/Find.svg' checkable='true' "
                              "switchable='true'>"
                              + item("页页", icon) + "</menu>";
        TestHost host(row(split.arg("m_row") + group("panel", split.arg("m_group"))));
        host.showEnabled();
        for (const char *name : {"m_row", "m_group"}) {
            auto *button = host.toolBar()->findChild<SplitButton *>(name);
            QVERIFY2(button && button->popupMode() == QToolButton::MenuButtonPopup, name);
            movePointerAway();
            QTRY_VERIFY(!button->underMouse());
            QVERIFY2(isClearBeforeArrow(button), name);
            pointAt(button);
            QVERIFY2(isClearBeforeArrow(button), name);
        }
    }

    void shouldWriteThePageAndTheTotalOnOneLine_data() { addSkins(); }

    void shouldWriteThePageAndTheTotalOnOneLine()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        using namespace Describe;
        const QString captioned = field("d_gotopage", "text='页码'");
        TestHost host(row(captioned + label("d_totalpagelabel", "/12") + label("d_pagelabel", "页")
                          + field("t_number", "tooltip='数字'")));
        host.showEnabled();
        const auto *pages = host.find<QLineEdit>("d_gotopage");
        const auto middleOf = [](const QWidget *widget, const QRect &rect) {
            return widget->mapTo(widget->window(), rect.center()).y();
        };
        const int middle = middleOf(pages, pages->rect());
        for (const char *name : {"d_totalpagelabel", "d_pagelabel"}) {
            const auto *label = host.find<QLabel>(name);
            const int distance = middleOf(label, label->contentsRect()) - middle;
            QVERIFY2(qAbs(distance) <= 1, qPrintable(QString("%1: %2").arg(name).arg(distance)));
            const int textWidth = label->fontMetrics().horizontalAdvance(label->text());
            QVERIFY2(label->contentsRect().width() <= textWidth + 1, name);
        }
        const auto *number = host.find<QLineEdit>("t_number");
        QCOMPARE(number->height(), pages->height());
        QVERIFY(qAbs(middleOf(number, number->rect()) - middle) <= 1);
    }
};

QTEST_MAIN(CrispTest)
#include "tst_crisp.moc"
