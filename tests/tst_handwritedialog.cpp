#include "tests/support/HandWriting.h"

#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

namespace {

const char sheet[] = "QPushButton:checked{border:1px DotLine lightgray;} "
                     "QDialog{border:1px solid lightgray;}";
constexpr int colourButtonCount = 10;
constexpr int trackButtonCount = 6;

const QList<QColor> &defaultColours()
{
    static const QList<QColor> colours{Qt::red,  Qt::green,   Qt::yellow,  Qt::black,     Qt::white,
                                       Qt::blue, Qt::darkRed, Qt::magenta, Qt::darkGreen, Qt::cyan};
    return colours;
}

QColor swatchColour(const QDialog &dialog, int index)
{
    const QIcon icon = colourButton(dialog, index)->icon();
    return icon.pixmap(QSize(35, 35)).toImage().pixelColor(17, 17);
}

QString pictureFile(const QTemporaryDir &folder)
{
    QPixmap picture(60, 40);
    picture.fill(Qt::darkGray);
    const QString path = folder.filePath(QStringLiteral("pen.png"));
    return picture.save(path) ? path : QString();
}

} // namespace

Q_DECLARE_METATYPE(Track *)

/** What the dialog of handwriting shows of what its host sets. */
class HandWriteDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialogShowsDefaults()
    {
        const MRHandWriteDialog dialog;
        QCOMPARE(dialog.objectName(), QStringLiteral("HandWriteDialog"));
        QCOMPARE(dialog.styleSheet(), QLatin1String(sheet));
        for (int i = 0; i < colourButtonCount; ++i) {
            const QPushButton *button = colourButton(dialog, i);
            QCOMPARE(swatchColour(dialog, i), defaultColours().at(i));
            QCOMPARE(button->icon().availableSizes(QIcon::Normal, QIcon::Off),
                     QList<QSize>{QSize(35, 35)});
            QCOMPARE(button->iconSize(), QSize(35, 35));
            QCOMPARE(button->minimumSize(), QSize(38, 38));
            QCOMPARE(button->maximumSize(), QSize(38, 38));
            QVERIFY(button->isFlat() && button->isCheckable() && !button->isChecked());
            QCOMPARE(button->text(), QString());
            QVERIFY(dialog.findChild<QWidget *>("widgetColorSelect")->isAncestorOf(button));
        }
        const auto *slider = dialog.findChild<QSlider *>("spliderThickness");
        QCOMPARE(slider->maximum(), 10);
        QCOMPARE(slider->value(), 8);
        QCOMPARE(dialog.findChild<QLabel *>("labelThickness")->text(), QStringLiteral("8"));
    }

    void everyPictureButtonHasAnAccessibleName()
    {
        MRHandWriteDialog dialog;
        const QList<QAbstractButton *> buttons = dialog.findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            const bool isNamed = !button->accessibleName().isEmpty() || button->text().size() > 1;
            QVERIFY2(isNamed, qPrintable(button->objectName()));
        }
        QCOMPARE(colourButton(dialog, 5)->accessibleName(), QString::fromUtf8("蓝色"));
        QList<QColor> colours{QColor(0x12, 0x34, 0x56)};
        dialog.SetCommonColor(colours);
        QCOMPARE(colourButton(dialog, 0)->accessibleName(), QStringLiteral("#123456"));
    }

    void isAFramelessWindowEvenWithAParent()
    {
        QWidget parent;
        const MRHandWriteDialog dialog(&parent);
        QVERIFY(dialog.isWindow());
        QCOMPARE(dialog.windowFlags() & ~Qt::WindowType_Mask,
                 Qt::WindowFlags(Qt::FramelessWindowHint));
    }

    void colourListsOfAnyLengthDressTheFirstSwatches_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 1, 3, 10, 12})
            QTest::addRow("%d colours", count) << count;
    }

    void colourListsOfAnyLengthDressTheFirstSwatches()
    {
        QFETCH(int, count);
        MRHandWriteDialog dialog;
        QList<QColor> colours;
        for (int i = 0; i < count; ++i)
            colours.append(QColor(10 * i, 100, 200));
        dialog.SetCommonColor(colours);
        for (int i = 0; i < colourButtonCount; ++i)
            QCOMPARE(swatchColour(dialog, i), i < count ? colours.at(i) : defaultColours().at(i));
    }

    void selectedTrackIsShown_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<int>("opacity");
        QTest::addColumn<int>("checkedTrack");
        QTest::addColumn<int>("checkedColour");
        QTest::addColumn<int>("checkedOpacity");
        const QColor preset(Qt::cyan);
        const QColor other(1, 2, 3);
        QTest::newRow("third of six") << 6 << 2 << preset << 0 << 2 << 2 << 0;
        QTest::newRow("colour without swatch") << 6 << 2 << other << 1 << 2 << -1 << 1;
        QTest::newRow("first of six stays unchecked") << 6 << 0 << preset << 2 << -1 << 0 << 2;
        QTest::newRow("single one stays unchecked") << 1 << 0 << preset << 3 << -1 << 0 << 3;
        QTest::newRow("opacity too large") << 6 << 5 << preset << 4 << 5 << 5 << -1;
        QTest::newRow("opacity negative") << 6 << 5 << preset << -1 << 5 << 5 << -1;
        QTest::newRow("track behind the track buttons") << 12 << 7 << preset << 1 << -1 << 7 << 1;
        QTest::newRow("track behind all buttons") << 12 << 11 << preset << 1 << -1 << -1 << 1;
    }

    void selectedTrackIsShown()
    {
        QFETCH(int, count);
        QFETCH(int, selected);
        QFETCH(QColor, colour);
        QFETCH(int, opacity);
        MRHandWriteDialog dialog;
        Tracks tracks(count, selected);
        tracks[selected].colour = colour;
        tracks[selected].opacity = opacity;
        tracks[selected].thickness = 17;
        tracks[selected].maximumThickness = 25;
        dialog.SetCommonTrackInfo(tracks.list);

        QTEST(checkedIn(dialog, "buttonTrackGroup").value(0, -1), "checkedTrack");
        QTEST(checkedIn(dialog, "buttonColorGroup").value(0, -1), "checkedColour");
        QTEST(checkedIn(dialog, "buttonOpacityGroup").value(0, -1), "checkedOpacity");
        QCOMPARE(dialog.findChild<QSlider *>("spliderThickness")->maximum(), 25);
        QCOMPARE(dialog.findChild<QLabel *>("labelThickness")->text(), QStringLiteral("17"));
    }

    void onlyASingleTrackGetsItsPicture_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {0, 1, 2, 6, 9})
            QTest::addRow("%d tracks", count) << count;
    }

    void onlyASingleTrackGetsItsPicture()
    {
        QFETCH(int, count);
        const QTemporaryDir folder;
        const QString picture = pictureFile(folder);
        QVERIFY(!picture.isEmpty());
        Tracks tracks(count);
        for (int i = 0; i < count; ++i)
            tracks[i].icon = picture;

        MRHandWriteDialog dialog;
        dialog.SetCommonTrackInfo(tracks.list);
        for (int i = 0; i < trackButtonCount; ++i) {
            const bool isDressed = count == 1 && i == 0;
            const QPushButton *button = trackButton(dialog, i);
            QCOMPARE(button->icon().isNull(), !isDressed);
            QCOMPARE(button->text().isEmpty(), isDressed);
            QCOMPARE(button->iconSize() == QSize(60, 40), isDressed);
            QVERIFY(button->isCheckable() && button->isFlat());
        }
    }

    void noSelectedTrackLeavesTheSettings_data()
    {
        QTest::addColumn<QList<Track *>>("tracks");
        static Track unselected;
        QTest::newRow("empty list") << QList<Track *>();
        QTest::newRow("none selected") << QList<Track *>{&unselected, &unselected};
        QTest::newRow("null entries") << QList<Track *>{nullptr, &unselected, nullptr};
        QTest::newRow("a single null entry") << QList<Track *>{nullptr};
    }

    void noSelectedTrackLeavesTheSettings()
    {
        QFETCH(QList<Track *>, tracks);
        MRHandWriteDialog dialog;
        Tracks first(6, 2);
        dialog.SetCommonTrackInfo(first.list);
        dialog.SetCommonTrackInfo(tracks);
        QCOMPARE(dialog.GetCommonTrackInfo(), tracks);
        QCOMPARE(checkedIn(dialog, "buttonTrackGroup"), only(2));
        QCOMPARE(checkedIn(dialog, "buttonOpacityGroup"), only(0));
        QCOMPARE(dialog.findChild<QSlider *>("spliderThickness")->value(), 3);
    }

    void laterTrackReplacesTheEarlierOne()
    {
        MRHandWriteDialog dialog;
        Tracks tracks(6, 3);
        tracks[3].maximumThickness = -5;
        dialog.SetCommonTrackInfo(tracks.list);
        const auto *slider = dialog.findChild<QSlider *>("spliderThickness");
        QCOMPARE(slider->value(), 0);

        Tracks later(6, 0);
        later[0].colour = QColor(1, 2, 3);
        later[0].opacity = 9;
        dialog.SetCommonTrackInfo(later.list);
        for (const char *group : {"buttonTrackGroup", "buttonColorGroup", "buttonOpacityGroup"})
            QCOMPARE(checkedIn(dialog, group), only(-1));
        QCOMPARE(slider->minimum(), 0);
        QCOMPARE(slider->value(), 3);

        later.list.prepend(nullptr);
        dialog.SetCommonTrackInfo(later.list);
        QCOMPARE(checkedIn(dialog, "buttonTrackGroup"), only(1));
    }

    void trackListIsHandedBackAndRecordsStayUntouched()
    {
        MRHandWriteDialog dialog;
        QVERIFY(dialog.GetCommonTrackInfo().isEmpty());
        Tracks tracks(6, 2);
        dialog.SetCommonTrackInfo(tracks.list);
        colourButton(dialog, 0)->click();
        trackButton(dialog, 4)->click();
        dialog.findChild<QSlider *>("spliderThickness")->setValue(9);

        QCOMPARE(dialog.GetCommonTrackInfo(), tracks.list);
        QCOMPARE(tracks[2].colour, QColor(Qt::blue));
        QCOMPARE(tracks[2].thickness, 3);
        QVERIFY(tracks[2].selected && !tracks[4].selected);
    }

    void regionSizeAndSignalsAreTheHosts()
    {
        MRHandWriteDialog dialog;
        QSignalSpy updated(&dialog, SIGNAL(DoUpdateRegionDefaultSize(int)));
        QVERIFY(updated.isValid());
        QVERIFY(dialog.metaObject()->indexOfSignal("DoUpdateCommonTrackInfo(QList<HandTrack*>&)")
                >= 0);
        QCOMPARE(dialog.GetRegionSize(), 0);
        dialog.SetRegionSize(42);
        QCOMPARE(dialog.GetRegionSize(), 42);
        QCOMPARE(updated.count(), 0);
    }
};

QTEST_MAIN(HandWriteDialogTest)
#include "tst_handwritedialog.moc"
