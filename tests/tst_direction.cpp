// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Pictures.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/EndFade.h"

#include <QLineEdit>
#include <QMenu>

namespace {

/** The direction of all windows for the time of one test. */
class Direction
{
public:
    explicit Direction(Qt::LayoutDirection direction) { set(direction); }
    ~Direction() { set(Qt::LeftToRight); }
    Q_DISABLE_COPY_MOVE(Direction)

    static void set(Qt::LayoutDirection direction)
    {
        QGuiApplication::setLayoutDirection(direction);
        QTest::qWait(1);
    }
};

std::unique_ptr<TestHost> usedHost(int width)
{
    auto host = TestHost::withFile(QStringLiteral(SHOWCASE));
    host->window().resize(width, 500);
    host->showEnabled();
    host->window().activateWindow();
    host->openEachTab([](const QString &) {});
    host->enableEverything();
    auto *field = host->find<QLineEdit>("st_input");
    QTest::mouseClick(field, Qt::LeftButton);
    field->setText("word"); // Typing it would choose a direction for the field.
    host->toolBar()->setFocus();
    return host;
}

} // namespace

/** A layout from right to left, chosen while the toolbar is there. */
class DirectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLookAsBuiltInTheDirection_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<int>("width");
        QTest::newRow("marodi") << marodi << 1500;
        QTest::newRow("marodi, narrow") << marodi << 520;
        QTest::newRow("lum") << lum << 1500;
        QTest::newRow("lum, narrow") << lum << 560;
    }

    void shouldLookAsBuiltInTheDirection()
    {
        QFETCH(int, skin);
        QFETCH(int, width);
        const SkinChoice choice(skin);
        const auto host = usedHost(width);
        const QList<QImage> before = picturesOf(*host);

        const Direction mirrored(Qt::RightToLeft);
        const auto built = usedHost(width);
        QVERIFY(picturesOf(*host) == picturesOf(*built));
        QVERIFY(picturesOf(*host) != before);
        Direction::set(Qt::LeftToRight);
        QVERIFY(picturesOf(*host) == before);
    }

    void shouldFadeTheEndThatIsCutOff()
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
        const Direction mirrored(Qt::RightToLeft);
        QCOMPARE(placesOfFades(), QList<int>{0});
    }
};

QTEST_MAIN(DirectionTest)
#include "tst_direction.moc"
