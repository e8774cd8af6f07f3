// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/EventCounter.h"
#include "tests/support/Pictures.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QScopeGuard>
#include <QScreen>
#include <QToolButton>

#include <cmath>

namespace {

const QString scaleKey = "scalefactor";

} // namespace

class ScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldIgnoreAnImpossibleScale_data()
    {
        QTest::addColumn<QString>("scale");
        for (const char *scale : {"0.49", "4.01", "-1", "nan", "inf", "", "two", "1,5", "Screen"})
            QTest::newRow(scale) << scale;
    }

    void shouldIgnoreAnImpossibleScale()
    {
        QFETCH(QString, scale);
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE), {{scaleKey, "1.5"}});
        const QString sheet = host->sheet();
        host->facade().DoSetSkinStyleSlot({{scaleKey, scale}});
        host->facade().DoSetScaleSlot(scale.toDouble());
        host->facade().DoSetScaleSlot(std::nan(""));
        QCOMPARE(host->sheet(), sheet);
    }

    void shouldStyleControlsOnceForAWholeMap()
    {
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE), {{scaleKey, "1"}});
        useForAWhile(*host);
        EventCounter restyled(host->shownTabs().first(), {QEvent::StyleChange});
        host->facade().DoSetSkinStyleSlot({{"[MainColor]", "#0a5"}});
        const int forColours = restyled.sinceLastAsked();
        QVERIFY(forColours > 0);
        host->facade().DoSetSkinStyleSlot({{"[MainColor]", "#a50"},
                                           {scaleKey, "2"},
                                           {"touchmode", "true"},
                                           {"fontfromapplication", "true"},
                                           {"scheme", "dark"}});
        QCOMPARE(restyled.sinceLastAsked(), forColours);
    }

    void shouldFollowTheScreenOfItsWindow()
    {
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE), {{scaleKey, "3"}});
        host->show();
        // What Qt has divided the density by is the application's own scaling here.
        const QScreen *screen = host->window().screen();
        const double dpi = screen->physicalDotsPerInchX() * screen->devicePixelRatio();
        const auto expected = TestHost::withFile(
            QStringLiteral(SHOWCASE), {{scaleKey, QString::number(std::round(dpi) / 96)}});
        const QString sheet = expected->sheet();
        host->facade().DoSetSkinStyleSlot({{scaleKey, "screen"}});
        QCOMPARE(host->sheet(), sheet);
        // Windows come and go with what the host does to them.
        host->window().setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        host->window().show();
        QCOMPARE(host->sheet(), sheet);
    }

    void shouldBeHitByFingers_data() { addSkins(); }

    void shouldBeHitByFingers()
    {
        const SkinChoice choice;
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE), {{"touchmode", "true"}});
        useForAWhile(*host);
        const int least = int(std::ceil(9 / 25.4 * host->window().physicalDpiX()));
        host->openEachTab([&host, least](const QString &tab) {
            const auto buttons = host->toolBar()->findChildren<QAbstractButton *>();
            for (const QAbstractButton *button : buttons) {
                const QSize size = button->visibleRegion().boundingRect().size();
                if (!button->isVisible() || size.isEmpty())
                    continue;
                QVERIFY2(size.width() >= least && size.height() >= least && size == button->size(),
                         qPrintable(QStringLiteral("%1, %2: %3 x %4 of %5 x %6")
                                        .arg(tab, button->objectName())
                                        .arg(size.width())
                                        .arg(size.height())
                                        .arg(button->width())
                                        .arg(button->height())));
            }
        });
        const QList<QMenu *> menus = host->toolBar()->findChildren<QMenu *>();
        for (QMenu *menu : menus) {
            menu->ensurePolished();
            const QList<QAction *> entries = menu->actions();
            for (QAction *entry : entries) {
                if (!entry->isSeparator() && entry->isVisible())
                    QVERIFY2(menu->actionGeometry(entry).height() >= least,
                             qPrintable(menu->objectName() + ' ' + entry->objectName()));
            }
        }

        host->facade().DoSetSkinStyleSlot({{"touchmode", "false"}});
        const auto plain = TestHost::withFile(QStringLiteral(SHOWCASE));
        useForAWhile(*plain);
        host->show();
        QVERIFY2(picturesOf(*host) == picturesOf(*plain), "back again");
    }

    void shouldHaveRoomForTheFontOfTheApplication_data() { addSkins(); }

    void shouldHaveRoomForTheFontOfTheApplication()
    {
        const SkinChoice choice;
        const QFont previous = QApplication::font();
        const auto restore = qScopeGuard([&previous] { QApplication::setFont(previous); });
        const auto host =
            TestHost::withFile(QStringLiteral(SHOWCASE), {{"fontfromapplication", "true"}});
        useForAWhile(*host);
        for (const int points : {14, 20}) {
            QFont font = previous;
            font.setPointSize(points);
            QApplication::setFont(font);
            QTest::qWait(1);
            host->openEachTab([&host, &font](const QString &tab) {
                const auto buttons = host->toolBar()->findChildren<QToolButton *>();
                for (const QToolButton *button : buttons) {
                    if (button->toolButtonStyle() == Qt::ToolButtonIconOnly || !button->isVisible())
                        continue;
                    QCOMPARE(QFontInfo(button->font()).pixelSize(), QFontInfo(font).pixelSize());
                    const QFontMetrics metrics(button->font());
                    QVERIFY2(button->width() >= metrics.horizontalAdvance(button->text()),
                             qPrintable(tab + ' ' + button->text()));
                }
            });
        }
    }

    void shouldScaleTheSearchFieldInUse()
    {
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE), {{scaleKey, "1"}});
        host->showEnabled();
        auto *field = host->find<QLineEdit>("st_input");
        const int atRest = field->width();
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClicks(field, "word");
        const int widened = field->width();
        const int room = field->textMargins().right();
        host->facade().DoSetScaleSlot(2);
        QCOMPARE(field->width(), 2 * widened);
        QTRY_VERIFY(field->textMargins().right() > room);
        host->facade().DoSetScaleSlot(1);
        QTRY_COMPARE(field->textMargins().right(), room);
        field->clear();
        host->toolBar()->setFocus();
        QTRY_COMPARE(field->width(), atRest);
    }
};

QTEST_MAIN(ScaleTest)
#include "tst_scale.moc"
