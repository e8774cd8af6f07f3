// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestHost.h"
#include "toolbar/skin/TurnedIcon.h"
#include "toolbar/widgets/IconLabel.h"

#include <QLineEdit>

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

/** The button that unfolds the rows and the label in the search field. */
QList<QImage> pictures(const TestHost &host)
{
    QList<QImage> images{host.find<QPushButton>("t_extend")->grab().toImage()};
    const QList<QLineEdit *> fields = host.toolBar()->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        for (QLabel *label : field->findChildren<QLabel *>())
            images.append(label->grab().toImage());
    }
    return images;
}

} // namespace

/** Icons and labels that look as they do at the moment of painting. */
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

    void shouldFollowTheScheme()
    {
        const auto dark = TestHost::withFile(SHOWCASE, {{"scheme", "dark"}});
        const auto host = TestHost::withFile(SHOWCASE);
        dark->showEnabled();
        host->showEnabled();
        const QList<QImage> light = pictures(*host);
        QVERIFY(light.size() > 1);
        host->facade().DoSetSkinStyleSlot({{"scheme", "dark"}});
        QCOMPARE(pictures(*host), pictures(*dark));
        host->facade().DoSetSkinStyleSlot({{"scheme", "light"}});
        QCOMPARE(pictures(*host), light);
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
