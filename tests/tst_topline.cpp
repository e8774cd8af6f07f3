// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/TabStrip.h"

#include <QLineEdit>

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

} // namespace

/** The top line in windows that are too narrow for it. */
class TopLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepEverythingReachableInANarrowWindow_data() { TestDocuments::addAll(); }

    void shouldKeepEverythingReachableInANarrowWindow()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        const auto host = TestHost::withFile(path);
        host->window().resize(host->scaled(narrowWidth), host->scaled(300));
        host->show();
        QVERIFY(host->window().width() <= host->scaled(narrowWidth));

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
        TestHost host(manyTabs(count));
        host.show();
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
        QVERIFY(host->window().width() <= host->scaled(narrowWidth));
        QVERIFY(isReachable(field));
    }
};

QTEST_MAIN(TopLineTest)
#include "tst_topline.moc"
