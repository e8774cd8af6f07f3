// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Icons.h"
#include "tests/support/Pointer.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/widgets/SplitButton.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QToolBar>
#include <QToolTip>

#include <algorithm>

using namespace Describe;

namespace {

/** The drawing that an icon of a skin takes for so many pixels at that ratio. */
const struct
{
    const char *name, *skin, *asked;
    int side;
    qreal ratio;
    const char *drawn;
} drawings[]{
    {"own size", "marodi", "icon24/Copy", 24, 1.0, "icon24/Copy"},
    {"smaller", "marodi", "icon24/Copy", 16, 1.0, "icon16/Copy"},
    {"larger", "marodi", "icon16/Copy", 24, 1.0, "icon24/Copy"},
    {"dense", "marodi", "icon24/Copy", 16, 2.0, "icon16/Copy"},
    {"dense row", "lum", "icon16/Find", 24, 2.0, "icon24/Find"},
    {"one and a half", "lum", "icon16/Find", 16, 1.5, "icon24/Find"},
    {"menu", "lum", "icon16/Save", 20, 1.0, "icon20/Save"},
    {"nearest", "lum", "icon24/Find", 18, 1.0, "icon16/Find"},
    {"for menus alone", "lum", "icon24/FullScreen", 16, 1.0, "../drawings/icon16/FullScreen"},
    {"no other", "marodi", "icon24/Stamp", 36, 1.0, "icon24/Stamp"},
    {"white for dark", "marodi", "icon24/Redo", 16, 1.0, "icon24/Redo"},
    {"dark for white", "marodi", "icon16/Redo", 24, 1.0, "icon16/Redo"},
};

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

QImage pictureOf(const QWidget *control)
{
    QTest::qWait(20);
    return seen(control, control->rect());
}

/** The colour of the control's ground, beside its middle where no text or icon is. */
QColor groundOf(QWidget *control)
{
    return pictureOf(control).pixelColor(5, control->height() / 2);
}

void leave(const QWidget *control)
{
    movePointerAway();
    QTRY_VERIFY(!control->underMouse());
}

void pointAt(QWidget *control)
{
    // Not on an arrow, nor beside a button that keeps a margin.
    const QPoint place(control->width() / 3, control->height() / 2);
    QCursor::setPos(control->mapToGlobal(place));
    QTest::mouseMove(control, place);
    QTRY_VERIFY(control->underMouse());
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
    return arrow.isValid() && strongestMark(seen(button, gap)) < 60;
}

/** Where in the entry's line the first pixel stands out from its ground, from @p left on. */
QPoint firstMark(const QMenu *menu, const QImage &image, QAction *entry, int left)
{
    const QRect line = menu->actionGeometry(entry);
    const QRgb ground = image.pixel(line.left() + 3, line.center().y());
    for (int x = left; x < line.right(); ++x) {
        for (int y = line.top() + 2; y < line.bottom() - 1; ++y) {
            if (qAbs(qGray(image.pixel(x, y)) - qGray(ground)) > 24)
                return {x, y - line.top()};
        }
    }
    return {};
}

/** Entries with and without an icon or a check mark, all of the same text. */
QString entriesOfEachKind(bool withIcons)
{
    const QString entry = "<menuitem action='%1' text='目' %2/>";
    const QString icon = withIcons ? "icon='icon16/Find.svg' " : "";
    const QString checkable = "checkable='true' ";
    const QString checked = checkable + "checked='true' ";
    return entry.arg("a", icon) + entry.arg("b", checked) + entry.arg("c", icon + checked)
           + entry.arg("d", QString()) + entry.arg("e", checkable);
}

QImage pictureOfMenu(const TestHost &host, QMenu *menu)
{
    movePointerAway();
    menu->popup(host.toolBar()->window()->mapToGlobal(QPoint(20, 200)));
    if (!QTest::qWaitForWindowExposed(menu))
        return QImage();
    const QImage image = menu->grab().toImage();
    menu->close();
    return image;
}

} // namespace

/** What the eye notices first: lines on their pixels, and states that can be told apart. */
class CrispTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeTheDrawingOfTheNearestSize_data() { addRows(drawings); }

    void shouldTakeTheDrawingOfTheNearestSize()
    {
        const auto &[name, skin, asked, side, ratio, drawn] = rowOf(drawings);
        const QIcon wanted(iconFile(skin, drawn));
        const QIcon icon = skinIcon(iconFile(skin, asked));
        QCOMPARE(painted(icon, side, ratio), painted(wanted, side, ratio));
        // Widgets ask for pictures of physical pixels instead.
        const int pixels = qRound(side * ratio);
        QCOMPARE(painted(icon.pixmap(pixels), pixels, 1.0), painted(wanted, pixels, 1.0));
    }

    void shouldDarkenWhatIsCheckedUnderThePointer_data() { addSkins(); }

    void shouldDarkenWhatIsCheckedUnderThePointer()
    {
        const SkinChoice choice;
        for (const TestHost::SkinMap &map : {TestHost::SkinMap(), night}) {
            TestHost host = TestHost::enabled(oneOfEach(), map);
            QWidget *plain = host.find<QToolBar>("row")->widgetForAction(host.action("b_plain"));
            for (QWidget *control : {plain, static_cast<QWidget *>(host.shownTabs().first()),
                                     host.find<QWidget>("e_preference")}) {
                leave(control);
                const QColor resting = groundOf(control);
                pointAt(control);
                const QColor hovered = groundOf(control);
                const QByteArray name = control->objectName().toUtf8();
                QVERIFY2(hovered.lightness() < resting.lightness() - 3, name);
                QVERIFY2(qAbs(hovered.hslHue() - resting.hslHue()) < 10, name);
            }
        }
    }

    void shouldDimEveryPartOfADisabledControl_data() { addSkins(); }

    void shouldDimEveryPartOfADisabledControl()
    {
        const SkinChoice choice;
        TestHost host = TestHost::enabled(oneOfEach());
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
            const int enabled = strongestMark(seen(control, area));
            control->setEnabled(false);
            const int disabled = strongestMark(seen(control, area));
            QVERIFY2(enabled > 80, name);
            QVERIFY2(disabled > enabled / 4 && disabled < enabled * 2 / 3, name);
        }
    }

    void shouldShowNoHoverOnAButtonThatShowsNothing_data() { addSkins(); }

    void shouldShowNoHoverOnAButtonThatShowsNothing()
    {
        const SkinChoice choice;
        TestHost host = TestHost::enabled(oneOfEach());
        for (const char *name : {"ab_set", "menu_file"}) {
            auto *button = host.find<QPushButton>(name);
            leave(button);
            const QImage resting = pictureOf(button);
            pointAt(button);
            const bool isBlank = button->icon().isNull() && button->text().isEmpty();
            QCOMPARE(pictureOf(button) == resting, isBlank);
        }
    }

    void shouldDrawTheFocusAlongWhatTheButtonShows_data() { addSkins(); }

    void shouldDrawTheFocusAlongWhatTheButtonShows()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        TestHost host = TestHost::enabled(oneOfEach());
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

    void shouldKeepTheLabelClearOfItsArrow_data() { addSkins(); }

    void shouldKeepTheLabelClearOfItsArrow()
    {
        const SkinChoice choice;
        const QString icon = "icon='icon24/Find.svg' ";
        const QString split = "<menu name='%1' text='页页' icon='icon24/Find.svg' checkable='true' "
                              "switchable='true'>"
                              + item("页页", icon) + "</menu>";
        TestHost host =
            TestHost::enabled(row(split.arg("m_row") + group("panel", split.arg("m_group"))));
        for (const char *name : {"m_row", "m_group"}) {
            auto *button = host.toolBar()->findChild<SplitButton *>(name);
            QVERIFY2(button && button->popupMode() == QToolButton::MenuButtonPopup, name);
            leave(button);
            QVERIFY2(isClearBeforeArrow(button), name);
            pointAt(button);
            QVERIFY2(isClearBeforeArrow(button), name);
        }
    }

    void shouldWriteThePageAndTheTotalOnOneLine_data() { addSkins(); }

    void shouldWriteThePageAndTheTotalOnOneLine()
    {
        const SkinChoice choice;
        const QString captioned = field("d_gotopage", "text='页码'");
        TestHost host = TestHost::enabled(row(captioned + label("d_totalpagelabel", "/12")
                                              + label("d_pagelabel", "页")
                                              + field("t_number", "tooltip='数字'")));
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

    void shouldAlignTheEntriesOfAMenuAndTheirMarks_data() { addSkins(); }

    void shouldAlignTheEntriesOfAMenuAndTheirMarks()
    {
        const SkinChoice choice;
        for (const bool withIcons : {true, false})
            verifyAlignment(withIcons);
    }

    void shouldOpenAListBelowItsField_data() { addSkins(); }

    void shouldOpenAListBelowItsField()
    {
        const SkinChoice choice;
        QString choices;
        for (int i = 0; i < 18; ++i)
            choices += Describe::choice(QString("c%1").arg(i), QString::number(i));
        TestHost host = TestHost::enabled(row(comboBox("c_list", choices, "index='2'")));
        auto *box = host.find<QComboBox>("c_list");
        box->showPopup();
        const QWidget *list = box->view()->window();
        QTRY_VERIFY(list->isVisible());
        QVERIFY(list->y() >= box->mapToGlobal(box->rect().bottomLeft()).y());
        // There is no scroll bar, so that everything is on show.
        QVERIFY(box->view()->visualRect(box->model()->index(17, 0)).bottom()
                <= box->view()->viewport()->height());
        box->hidePopup();
    }

    void shouldShowTipsInTheColoursOfTheSkin_data() { addSkins(); }

    void shouldShowTipsInTheColoursOfTheSkin()
    {
        const SkinChoice choice;
        const QPalette previous = QToolTip::palette();
        QPalette yellow = previous;
        yellow.setColor(QPalette::ToolTipBase, Qt::yellow);
        QToolTip::setPalette(yellow);
        TestHost host = TestHost::enabled(row(button("one")));
        QWidget *tab = host.shownTabs().first();
        QToolTip::showText(tab->mapToGlobal(QPoint()), "tip", tab);
        const auto isTip = [](const QWidget *widget) { return widget->inherits("QTipLabel"); };
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto tip = std::find_if(windows.cbegin(), windows.cend(), isTip);
        QVERIFY(tip != windows.cend());
        const QImage image = (*tip)->grab().toImage();
        QCOMPARE(image.pixelColor(3, 3), QColor(Qt::white));
        QVERIFY(qGray(image.pixel(0, image.height() / 2)) > 128);
        QToolTip::hideText();
        QToolTip::setPalette(previous);
    }

private:
    static void verifyAlignment(bool withIcons)
    {
        TestHost host = TestHost::enabled(row(menu("m_entries", entriesOfEachKind(withIcons))));
        auto *menu = host.find<QMenu>("m_entries");
        const QImage image = pictureOfMenu(host, menu);
        const int column = firstMark(menu, image, host.action("a"), host.scaled(36)).x();
        QVERIFY(column > host.scaled(36));
        for (const char *name : {"b", "c", "d", "e"})
            QCOMPARE(firstMark(menu, image, host.action(name), host.scaled(36)).x(), column);
        const QPoint byCheck = firstMark(menu, image, host.action("b"), 4);
        QVERIFY(!byCheck.isNull() && byCheck.x() < host.scaled(36));
        QCOMPARE(firstMark(menu, image, host.action("c"), 4), byCheck);
    }
};

QTEST_MAIN(CrispTest)
#include "tst_crisp.moc"
