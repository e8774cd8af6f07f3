// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/TurnedIcon.h"
#include "toolbar/widgets/IconLabel.h"

#include <QTest>

namespace {

constexpr QSize size(16, 16);

/** An icon that looks different upside down. */
QIcon cornerIcon()
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int x = 0; x < 6; ++x)
        image.setPixelColor(x, x / 2, Qt::blue);
    return QIcon(QPixmap::fromImage(image));
}

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

/** Icons and labels that are drawn at the moment of painting. */
class PaintedIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTurnAnIconUpsideDown()
    {
        QCOMPARE(imageOf(turnedIcon(cornerIcon())),
                 imageOf(cornerIcon()).transformed(QTransform().rotate(180)));
        QVERIFY(turnedIcon(QIcon()).isNull());
    }

    void shouldShowWhatAHostPutsIntoALabel()
    {
        IconLabel label;
        label.setIcon(cornerIcon(), size);
        label.resize(size);
        const QImage before = label.grab().toImage();
        QCOMPARE(before.pixelColor(4, 2), QColor(Qt::blue));
        QPixmap other(size);
        other.fill(Qt::red);
        label.setPixmap(other);
        QCOMPARE(label.grab().toImage().pixelColor(4, 2), QColor(Qt::red));
    }
};

QTEST_MAIN(PaintedIconsTest)
#include "tst_paintedicons.moc"
