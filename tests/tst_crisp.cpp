// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestHost.h"
#include "toolbar/skin/SkinIcon.h"

#include <QPainter>

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
};

QTEST_MAIN(CrispTest)
#include "tst_crisp.moc"
