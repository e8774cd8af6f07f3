// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/EndFade.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/TabStrip.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPropertyAnimation>
#include <QScrollBar>
#include <QWheelEvent>

using namespace Describe;

namespace {

constexpr double narrowWidth = 500;

/** Whether a click on the middle of the widget reaches it. */
bool isReachable(const QWidget *widget)
{
    const QWidget *window = widget->window();
    const QPoint middle = widget->mapTo(window, widget->rect().center());
    return window->childAt(middle) == widget;
}

/** The arrow on that side of the tabs; null while it is hidden. */
TabStripArrow *arrow(const TestHost &host, bool isLeft)
{
    const auto *strip = dynamic_cast<TabStrip *>(
        host.shownTabs().first()->parentWidget()->parentWidget()->parentWidget());
    const QList<QPushButton *> children =
        strip->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton *child : children) {
        if (child->isVisible() && (child->x() == 0) == isLeft)
            return dynamic_cast<TabStripArrow *>(child);
    }
    return nullptr;
}

QString manyTabs(int count)
{
    QString tabs;
    for (int i = 0; i < count; ++i)
        tabs += tab(QStringLiteral("tab%1").arg(i), {}, i == 0 ? "checked='true'" : "");
    return section("tabbar", tabs);
}

constexpr int rowWidth = 900;

/** A row of fixed width in a narrower window, with a label and a combo box on it. */
class ScrolledRow
{
public:
    explicit ScrolledRow(int windowWidth)
        : row(new QWidget)
        , label(new QLabel(QStringLiteral("Label"), row))
        , combo(new QComboBox(row))
    {
        row->setFixedSize(rowWidth, 60);
        label->setGeometry(250, 0, 60, 60);
        combo->setGeometry(80, 10, 100, 30);
        for (int i = 0; i < 30; ++i)
            combo->addItem(QString::number(i));
        holder.SetWidget(row, Qt::AlignLeft);
        holder.move(20, 20);
        holder.resize(windowWidth, 64);
        holder.show();
        QVERIFY(QTest::qWaitForWindowExposed(&holder));
    }

    MRScrollArea *area() const { return holder.findChild<MRScrollArea *>(); }
    QScrollBar *bar() const { return area()->horizontalScrollBar(); }
    int end() const { return rowWidth - area()->viewport()->width(); }
    QPushButton *arrow(const char *side) const
    {
        return holder.findChild<QPushButton *>(QString::fromLatin1(side));
    }
    bool isMoving() const
    {
        return area()->findChild<QPropertyAnimation *>()->state() == QAbstractAnimation::Running;
    }
    void click(const char *side) const { QTest::mouseClick(arrow(side), Qt::LeftButton); }

    MRScrollWidget holder;
    QWidget *row;
    QLabel *label;
    QComboBox *combo;
};

} // namespace

/** The top line and the rows in windows that are too narrow for them. */
class TopLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepEverythingReachableInANarrowWindow_data() { TestDocuments::addAll(); }

    void shouldKeepEverythingReachableInANarrowWindow()
    {
        QFETCH(QString, path);
        const SkinChoice choice;
        const auto host = TestHost::withFile(path);
        // The showcase has a button more at the end of the line.
        const int narrow = host->scaled(path.contains("showcase") ? narrowWidth + 30 : narrowWidth);
        host->window().resize(narrow, host->scaled(300));
        host->show();
        QVERIFY(host->window().width() <= narrow);
        const QWidget *line = host->find<QWidget>(QStringLiteral("top_widget"));
        const QList<QPushButton *> buttons =
            line->findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QPushButton *button : buttons) {
            const bool isWhole = button->width() >= button->sizeHint().width();
            QVERIFY2(!button->isVisible() || (isReachable(button) && isWhole),
                     qPrintable(button->objectName()));
        }
        const QList<QPushButton *> tabs = host->shownTabs();
        for (int i = 0; i < tabs.size() && arrow(*host, true); ++i)
            QTest::mouseClick(arrow(*host, true), Qt::LeftButton);
        for (int i = 0; i < tabs.size(); ++i) {
            while (!isReachable(tabs.at(i)) && arrow(*host, false))
                QTest::mouseClick(arrow(*host, false), Qt::LeftButton);
            QVERIFY2(isReachable(tabs.at(i)), qPrintable(tabs.at(i)->objectName()));
        }
    }

    void shouldScrollTheTabsByArrowsWheelAndFocus()
    {
        constexpr int count = 20;
        TestHost host(manyTabs(count));
        host.window().resize(host.scaled(narrowWidth), host.scaled(300));
        host.show();
        const QList<QPushButton *> tabs = host.shownTabs();
        QVERIFY(isReachable(tabs.first()) && !isReachable(tabs.last()));
        QVERIFY(!arrow(host, true) && arrow(host, false));
        for (int clicks = 0; arrow(host, false) && clicks < count; ++clicks)
            QTest::mouseClick(arrow(host, false), Qt::LeftButton);
        QVERIFY(isReachable(tabs.last()) && arrow(host, true) && !arrow(host, false));
        tabs.first()->setFocus(Qt::TabFocusReason);
        QVERIFY(isReachable(tabs.first()));
        turnWheel(tabs.first(), {0, -120});
        QVERIFY(arrow(host, true));
        turnWheel(tabs.at(1), {0, 120});
        QVERIFY(!arrow(host, true));
        QTest::mouseClick(tabs.at(3), Qt::LeftButton);
        tabs.last()->click();
        QVERIFY2(isReachable(tabs.last()), "The tab on show is hidden");
    }

    void shouldShowTabsAsAWholeOrNotAtAll()
    {
        constexpr int count = 20;
        TestHost host = TestHost::shown(manyTabs(count));
        const QList<QPushButton *> tabs = host.shownTabs();
        for (int width = 500; width < 600; width += 13) {
            host.window().resize(host.scaled(width), host.scaled(300));
            QTest::qWait(20);
            for (int clicks = 0; clicks < 3; ++clicks) {
                int shown = 0;
                for (const QPushButton *tab : tabs) {
                    const QRect seen = tab->visibleRegion().boundingRect();
                    QVERIFY2(seen.isEmpty() || seen == tab->rect(), qPrintable(tab->objectName()));
                    shown += seen.isEmpty() ? 0 : 1;
                }
                QVERIFY(shown > 1 && shown < count);
                if (arrow(host, false))
                    QTest::mouseClick(arrow(host, false), Qt::LeftButton);
            }
        }
    }

    void shouldShowTheRoundEndsOfATabThatFillsTheStrip()
    {
        const SkinChoice choice(lum);
        TestHost host(manyTabs(3));
        host.window().resize(1, host.scaled(300));
        host.show();
        QTest::mouseClick(arrow(host, false), Qt::LeftButton);
        const QPushButton *tab = host.shownTabs().at(1);
        QVERIFY(arrow(host, true) && arrow(host, false));
        QCOMPARE(tab->visibleRegion().boundingRect(), tab->rect());
    }

    void shouldKeepTheWindowNarrowWhenTheSearchFieldWidens()
    {
        const auto host = TestHost::withShipped(QStringLiteral("marodi/mr_toolbar.debug.xml"));
        host->window().resize(host->scaled(narrowWidth), host->scaled(300));
        host->show();
        auto *field = host->find<QLineEdit>(QStringLiteral("st_input"));
        const int rest = field->width();
        QTest::mouseClick(field, Qt::LeftButton);
        QTRY_COMPARE(field->width(), 2 * rest);
        QTest::qWait(50);
        QVERIFY(host->window().width() <= host->scaled(narrowWidth) && isReachable(field));
    }

    void init() { movePointerAway(); }

    void shouldShowAnArrowWhereContentIsHidden()
    {
        ScrolledRow fixture(1200);
        QVERIFY(!fixture.arrow("left")->isVisible() && !fixture.arrow("right")->isVisible());
        fixture.holder.resize(400, 64);
        QTRY_VERIFY(fixture.arrow("right")->isVisible());
        QVERIFY(!fixture.arrow("left")->isVisible());
        // The row changes its width, and the focus scrolls it.
        fixture.row->setFixedWidth(200);
        QTRY_VERIFY(!fixture.arrow("right")->isVisible());
        fixture.row->setFixedWidth(rowWidth);
        QTRY_VERIFY(fixture.arrow("right")->isVisible());
        fixture.bar()->setValue(fixture.end());
        QVERIFY(fixture.arrow("left")->isVisible() && !fixture.arrow("right")->isVisible());
    }

    void shouldFadeWhatIsCutOffAtAnEnd()
    {
        ScrolledRow fixture(400);
        fixture.row->setStyleSheet(QStringLiteral("QWidget{background:red;}"));
        const auto redAt = [&fixture](bool isLeft) {
            const QRect view = fixture.area()->viewport()->geometry();
            const QImage image = fixture.area()->grab().toImage();
            const int x = isLeft ? view.left() : view.right();
            return image.pixelColor(x, view.center().y()) == Qt::red;
        };
        QVERIFY(redAt(true) && !redAt(false));
        fixture.bar()->setValue(fixture.end() / 2);
        QVERIFY(!redAt(true) && !redAt(false));
        fixture.bar()->setValue(fixture.end());
        QVERIFY(!redAt(true) && redAt(false));
        // The pointer goes on to the control below.
        const QPoint edge(2, 30);
        QVERIFY(fixture.row->isAncestorOf(fixture.area()->childAt(edge))
                || fixture.area()->childAt(edge) == fixture.row);
        fixture.holder.resize(1200, 64);
        QTRY_VERIFY(redAt(true));
    }

    void shouldFadeTheOtherEndFromRightToLeft()
    {
        const auto host = TestHost::withRelease();
        host->window().resize(520, 500);
        host->showEnabled();
        const auto placesOfFades = [&host] {
            QList<int> places;
            const QList<QWidget *> parts = host->toolBar()->findChildren<QWidget *>();
            for (const QWidget *part : parts) {
                if (dynamic_cast<const EndFade *>(part) && part->isVisible())
                    places.append(part->x());
            }
            return places;
        };
        QTRY_COMPARE(placesOfFades().size(), 1);
        QVERIFY(placesOfFades().first() > 100);
        host->window().setLayoutDirection(Qt::RightToLeft);
        QTRY_COMPARE(placesOfFades(), QList<int>{0});
    }

    void shouldNameItsArrowsAndKeepTheirPlace()
    {
        const ScrolledRow fixture(400);
        const QRect before = fixture.area()->geometry();
        fixture.bar()->setValue(10);
        QCOMPARE(fixture.area()->geometry(), before);
        for (const char *side : {"left", "right"}) {
            QVERIFY(!fixture.arrow(side)->accessibleName().isEmpty());
            QVERIFY(!fixture.arrow(side)->icon().isNull());
            QVERIFY(fixture.holder.findChild<MRExtendButton *>(QLatin1String(side) + "extend"));
        }
    }

    void shouldScrollFromEndToEndAndElsewhereByAStep()
    {
        const ScrolledRow fixture(400);
        fixture.click("right");
        QVERIFY(fixture.isMoving());
        QTRY_COMPARE(fixture.bar()->value(), fixture.end());
        QTRY_VERIFY(fixture.arrow("left")->isVisible());
        QVERIFY(!fixture.arrow("right")->isVisible());
        fixture.click("left");
        QTRY_COMPARE(fixture.bar()->value(), 0);
        QTRY_VERIFY(!fixture.arrow("left")->isVisible());
        fixture.bar()->setValue(200); // From the middle, each arrow scrolls by a step.
        fixture.click("right");
        fixture.click("right"); // Ignored during the animation.
        QTRY_VERIFY(!fixture.isMoving());
        QCOMPARE(fixture.bar()->value(), 380);
        fixture.click("left");
        QTRY_VERIFY(!fixture.isMoving());
        QCOMPARE(fixture.bar()->value(), 200);
    }

    void shouldScrollByAStepOnTheWheel()
    {
        const ScrolledRow fixture(400);
        const QList<std::pair<QPoint, int>> turns{
            {{0, 120}, 380}, {{0, -15}, 20}, {{120, 0}, 200}}; // The last one is sideways.
        for (const auto &[delta, value] : turns) {
            for (QWidget *target :
                 {static_cast<QWidget *>(fixture.label), fixture.area()->viewport()}) {
                fixture.bar()->setValue(200);
                turnWheel(target, delta);
                turnWheel(target, delta); // Ignored during the animation.
                QTRY_VERIFY(!fixture.isMoving());
                QCOMPARE(fixture.bar()->value(), value);
            }
        }
    }

    void shouldLeaveTheWheelOverAComboBoxToTheComboBox()
    {
        const ScrolledRow fixture(400);
        for (const bool isEditable : {false, true}) {
            fixture.combo->setEditable(isEditable);
            QWidget *target =
                isEditable ? static_cast<QWidget *>(fixture.combo->lineEdit()) : fixture.combo;
            // Also at the last entry, where the combo box ignores the wheel.
            fixture.combo->setCurrentIndex(28);
            for (int turn = 0; turn < 2; ++turn) {
                turnWheel(target, QPoint(0, -120));
                QVERIFY(!fixture.isMoving());
                QCOMPARE(fixture.combo->currentIndex(), 29);
            }
        }
    }

    void shouldLeaveTheWheelOverAnOpenListToTheList()
    {
        const ScrolledRow fixture(400);
        fixture.combo->showPopup();
        QAbstractItemView *list = fixture.combo->view();
        // The list covers the row, so that the position of the pointer is inside both.
        list->window()->move(fixture.row->mapToGlobal(QPoint(0, 0)));
        list->window()->resize(150, 60);
        QTRY_VERIFY(list->verticalScrollBar()->maximum() > 0);
        turnWheel(list->viewport(), QPoint(0, -120));
        QVERIFY(list->verticalScrollBar()->value() > 0 && !fixture.isMoving());
        fixture.combo->hidePopup();
    }

    void shouldIgnoreTheWheelOutsideTheRow()
    {
        const ScrolledRow fixture(400);
        QWidget other(fixture.row, Qt::Tool); // A window, although it is a child of the row.
        other.setGeometry(600, 600, 100, 100);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        turnWheel(&other, QPoint(0, 120));
        QVERIFY(!fixture.isMoving());
        other.move(fixture.label->mapToGlobal(QPoint(-20, -20))); // In front of the row.
        turnWheel(&other, QPoint(0, 120));
        QVERIFY(!fixture.isMoving());
        // The row ignores a wheel event while the pointer is somewhere else.
        movePointerAway();
        QWheelEvent stray(QPoint(5, 5), QPoint(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        fixture.label->setAttribute(Qt::WA_NoMousePropagation);
        QApplication::sendEvent(fixture.label, &stray);
        QVERIFY(!fixture.isMoving());
    }
};

QTEST_MAIN(TopLineTest)
#include "tst_topline.moc"
