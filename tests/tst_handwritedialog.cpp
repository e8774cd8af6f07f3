// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Icons.h"
#include "toolbar/handwrite/MRHandWriteDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <vector>

namespace {

/** Track records, owned as by a host. */
struct Tracks
{
    explicit Tracks(int count, int selected = -1)
        : records(size_t(count))
    {
        for (int i = 0; i < count; ++i) {
            Track &track = (*this)[i];
            track = {i, Qt::blue, 3, 10, 0, i == selected, QString()};
            list.append(&track);
        }
    }
    Track &operator[](int index) { return records.at(size_t(index)); }

    std::vector<Track> records;
    QList<Track *> list;
};

class Dialog : public MRHandWriteDialog
{
public:
    using MRHandWriteDialog::MRHandWriteDialog;

    void appear()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
    template <typename Part = QWidget>
    Part *find(const QString &name) const
    {
        return findChild<Part *>(name);
    }
    /** Counted from 0, as tracks and colours are. */
    QPushButton *colourButton(int i) const { return numbered("pushButtonColor", i); }
    QPushButton *trackButton(int i) const { return numbered("pushButtonTrack", i); }
    QSlider *slider() const { return find<QSlider>("spliderThickness"); }
    QString thickness() const { return find<QLabel>("labelThickness")->text(); }

    QColor swatchColour(int i) const
    {
        return colourButton(i)->icon().pixmap(QSize(35, 35)).toImage().pixelColor(17, 17);
    }
    /** The place of the checked button of a group, from 0; -1 for none, or for more than one. */
    int checkedIn(const char *group) const
    {
        QList<int> checked;
        const QList<QAbstractButton *> buttons = find<QButtonGroup>(group)->buttons();
        for (int i = 0; i < buttons.size(); ++i) {
            if (buttons.at(i)->isChecked())
                checked.append(i);
        }
        return checked.size() == 1 ? checked.first() : -1;
    }

private:
    QPushButton *numbered(const char *name, int i) const
    {
        return find<QPushButton>(name + QString::number(i + 1));
    }
};

int pixelsOf(QWidget *widget, const QColor &colour)
{
    const QImage image = widget->grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global, Qt::MouseButton button)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, widget->mapFromGlobal(global), global, isMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

/** The handwriting dialog: how it shows the host's tracks, and its use by mouse and keyboard. */
class HandWriteDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowDefaultsAtFirst()
    {
        const QList<QColor> colours{Qt::red,  Qt::green,   Qt::yellow,  Qt::black,     Qt::white,
                                    Qt::blue, Qt::darkRed, Qt::magenta, Qt::darkGreen, Qt::cyan};
        QWidget parent;
        const Dialog dialog(&parent);
        QVERIFY(dialog.isWindow());
        QCOMPARE(dialog.windowFlags() & ~Qt::WindowType_Mask,
                 Qt::WindowFlags(Qt::FramelessWindowHint));
        for (int i = 0; i < 10; ++i) {
            const QPushButton *button = dialog.colourButton(i);
            QCOMPARE(dialog.swatchColour(i), colours.at(i));
            QCOMPARE(button->iconSize(), QSize(35, 35));
            QCOMPARE(button->minimumSize(), QSize(38, 38));
            QCOMPARE(button->maximumSize(), QSize(38, 38));
            QVERIFY(button->isFlat() && button->isCheckable() && !button->isChecked());
        }
        QCOMPARE(dialog.slider()->maximum(), 10);
        QCOMPARE(dialog.slider()->value(), 8);
        QCOMPARE(dialog.thickness(), QString("8"));
    }

    void shouldGivePictureButtonsAccessibleNames()
    {
        Dialog dialog;
        const QList<QAbstractButton *> buttons = dialog.findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            const bool isNamed = !button->accessibleName().isEmpty() || button->text().size() > 1;
            QVERIFY2(isNamed, qPrintable(button->objectName()));
        }
        QCOMPARE(dialog.colourButton(5)->accessibleName(), QString("蓝色"));
        QList<QColor> colours{QColor(0x12, 0x34, 0x56)};
        dialog.SetCommonColor(colours);
        QCOMPARE(dialog.colourButton(0)->accessibleName(), QString("#123456"));
    }

    void shouldColourTheFirstSwatchesByAListOfAnyLength()
    {
        for (const int count : {0, 3, 12}) {
            Dialog dialog;
            QList<QColor> colours;
            for (int i = 0; i < count; ++i)
                colours.append(QColor(10 * i, 100, 200));
            dialog.SetCommonColor(colours);
            const Dialog untouched;
            for (int i = 0; i < 10; ++i)
                QCOMPARE(dialog.swatchColour(i), colours.value(i, untouched.swatchColour(i)));
        }
    }

    void shouldShowTheSelectedTrack_data()
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

    void shouldShowTheSelectedTrack()
    {
        QFETCH(int, count);
        QFETCH(int, selected);
        QFETCH(QColor, colour);
        QFETCH(int, opacity);
        Dialog dialog;
        Tracks tracks(count, selected);
        tracks[selected] = {selected, colour, 17, 25, opacity, true, QString()};
        dialog.SetCommonTrackInfo(tracks.list);

        QTEST(dialog.checkedIn("buttonTrackGroup"), "checkedTrack");
        QTEST(dialog.checkedIn("buttonColorGroup"), "checkedColour");
        QTEST(dialog.checkedIn("buttonOpacityGroup"), "checkedOpacity");
        QCOMPARE(dialog.slider()->maximum(), 25);
        QCOMPARE(dialog.thickness(), QString("17"));
    }

    void shouldShowThePictureOfASingleTrackOnly()
    {
        const QTemporaryDir folder;
        const QString picture = savedPicture(folder);
        QVERIFY(!picture.isEmpty());
        for (const int count : {0, 1, 2, 9}) {
            Tracks tracks(count);
            for (Track *track : std::as_const(tracks.list))
                track->icon = picture;
            Dialog dialog;
            dialog.SetCommonTrackInfo(tracks.list);
            for (int i = 0; i < 6; ++i) {
                const bool isDressed = count == 1 && i == 0;
                const QPushButton *button = dialog.trackButton(i);
                QCOMPARE(button->icon().isNull(), !isDressed);
                QCOMPARE(button->text().isEmpty(), isDressed);
                QCOMPARE(button->iconSize() == QSize(60, 40), isDressed);
                QVERIFY(button->isCheckable() && button->isFlat());
            }
        }
    }

    void shouldKeepTheSettingsWithoutASelectedTrack()
    {
        Dialog dialog;
        Tracks first(6, 2);
        Track unselected;
        using List = QList<Track *>;
        for (List tracks : {List(), List{&unselected, &unselected},
                            List{nullptr, &unselected, nullptr}, List{nullptr}}) {
            dialog.SetCommonTrackInfo(first.list);
            dialog.SetCommonTrackInfo(tracks);
            QCOMPARE(dialog.GetCommonTrackInfo(), tracks);
            QCOMPARE(dialog.checkedIn("buttonTrackGroup"), 2);
            QCOMPARE(dialog.checkedIn("buttonOpacityGroup"), 0);
            QCOMPARE(dialog.slider()->value(), 3);
        }
    }

    void shouldReplaceAnEarlierTrackByALaterOne()
    {
        Dialog dialog;
        Tracks tracks(6, 3);
        tracks[3].maximumThickness = -5;
        dialog.SetCommonTrackInfo(tracks.list);
        QCOMPARE(dialog.slider()->value(), 0);

        Tracks later(6, 0);
        later[0].colour = QColor(1, 2, 3);
        later[0].opacity = 9;
        dialog.SetCommonTrackInfo(later.list);
        for (const char *group : {"buttonTrackGroup", "buttonColorGroup", "buttonOpacityGroup"})
            QCOMPARE(dialog.checkedIn(group), -1);
        QCOMPARE(dialog.slider()->minimum(), 0);
        QCOMPARE(dialog.slider()->value(), 3);

        later.list.prepend(nullptr);
        dialog.SetCommonTrackInfo(later.list);
        QCOMPARE(dialog.checkedIn("buttonTrackGroup"), 1);
    }

    void shouldNotChangeWhatTheHostHasSet()
    {
        Dialog dialog;
        const QSignalSpy updated(&dialog, SIGNAL(DoUpdateRegionDefaultSize(int)));
        const QSignalSpy changed(&dialog, SIGNAL(DoUpdateCommonTrackInfo(QList<HandTrack *> &)));
        QVERIFY(updated.isValid() && changed.isValid());
        QCOMPARE(dialog.GetRegionSize(), 0);
        QVERIFY(dialog.GetCommonTrackInfo().isEmpty());
        Tracks tracks(6, 2);
        dialog.SetRegionSize(42);
        dialog.SetCommonTrackInfo(tracks.list);
        dialog.colourButton(0)->click();
        dialog.trackButton(4)->click();
        dialog.slider()->setValue(9);

        QCOMPARE(dialog.GetRegionSize(), 42);
        QCOMPARE(dialog.GetCommonTrackInfo(), tracks.list);
        QCOMPARE(tracks[2].colour, QColor(Qt::blue));
        QCOMPARE(tracks[2].thickness, 3);
        QVERIFY(tracks[2].selected && !tracks[4].selected);
        QVERIFY(updated.isEmpty() && changed.isEmpty());
    }

    void shouldKeepOneButtonOfAGroupCheckedOnClicks()
    {
        Dialog dialog;
        Tracks tracks(6, 2);
        dialog.SetCommonTrackInfo(tracks.list);
        dialog.appear();
        for (const char *name : {"buttonColorGroup", "buttonOpacityGroup", "buttonTrackGroup"}) {
            const QList<QAbstractButton *> buttons = dialog.find<QButtonGroup>(name)->buttons();
            for (int click = 0; click < 2 * buttons.size(); ++click) {
                QTest::mouseClick(buttons.at(click / 2), Qt::LeftButton);
                QCOMPARE(dialog.checkedIn(name), click / 2);
            }
        }
    }

    void shouldMoveTheSliderByKeys()
    {
        Dialog dialog;
        dialog.appear();
        QTest::keyClick(dialog.slider(), Qt::Key_Right);
        QCOMPARE(dialog.thickness(), QString("9"));
        QTest::keyClick(dialog.slider(), Qt::Key_Home);
        QCOMPARE(dialog.thickness(), QString("0"));
        // Enter on a control must not click a default button.
        QTest::keyClick(dialog.slider(), Qt::Key_Return);
        QCOMPARE(dialog.checkedIn("buttonColorGroup"), -1);
        QVERIFY(dialog.isVisible());
    }

    void shouldMoveTheFocusFromTopToBottomByTab()
    {
        Dialog dialog;
        Tracks tracks(6, 2);
        dialog.SetCommonTrackInfo(tracks.list);
        dialog.appear();
        QStringList visited;
        dialog.colourButton(2)->setFocus();
        do {
            visited.append(dialog.focusWidget()->objectName());
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        } while (dialog.focusWidget() != dialog.colourButton(2) && visited.size() < 50);
        // A label gets the focus before its link.
        visited.removeDuplicates();
        QCOMPARE(visited.join(' '),
                 QString("pushButtonColor3 pushButtonFetch labelOtherSelect spliderThickness "
                         "pushButtonOpacity25p pushButtonTrack3 pushButtonRegionWrite "
                         "pushButtonRegionWriteSet toolButtonClose"));
    }

    void shouldPreviewTheSettings()
    {
        Dialog dialog;
        dialog.appear();
        auto *preview = dialog.find<QLabel>("labelPreview");
        const QString placeholder = "图片预览区域";
        QCOMPARE(preview->text(), placeholder);

        QTest::mouseClick(dialog.colourButton(0), Qt::LeftButton);
        const int thick = pixelsOf(preview, Qt::red);
        dialog.slider()->setValue(4);
        const int thin = pixelsOf(preview, Qt::red);
        QVERIFY2(thin > 100 && thick > thin * 3 / 2, qPrintable(QString::number(thin)));
        QTest::mouseClick(dialog.find("pushButtonOpacity25p"), Qt::LeftButton);
        QCOMPARE(pixelsOf(preview, Qt::red), 0);

        Tracks tracks(6, 2);
        tracks[2].opacity = 3;
        dialog.SetCommonTrackInfo(tracks.list);
        QVERIFY(pixelsOf(preview, Qt::blue) > 100);
        dialog.slider()->setValue(0);
        QCOMPARE(preview->text(), placeholder);
    }

    void shouldMoveByADragUnlessAControlIsPressed()
    {
        Dialog dialog;
        dialog.move(100, 120);
        dialog.appear();
        for (const char *name :
             {"widgetColorSelect", "labelPreview", "spliderThickness", "pushButtonTrack2"}) {
            auto *widget = dialog.find(name);
            const bool drags =
                !qobject_cast<QAbstractButton *>(widget) && widget != dialog.slider();
            const QPoint before = dialog.pos();
            const QPoint press = widget->mapToGlobal(QPoint(3, 3));
            sendMouse(widget, QEvent::MouseButtonPress, press, Qt::LeftButton);
            QVERIFY2(dialog.pos() == before, name);
            for (const QPoint &step : {QPoint(7, -4), QPoint(60, 45), QPoint(-30, 20)}) {
                sendMouse(widget, QEvent::MouseMove, press + step, Qt::LeftButton);
                QVERIFY2(dialog.pos() == (drags ? before + step : before), name);
            }
            sendMouse(widget, QEvent::MouseButtonRelease, press, Qt::LeftButton);
            const QPoint after = dialog.pos();
            // A move without a press on the dialog, such as one that a control ignores.
            sendMouse(widget, QEvent::MouseMove, press + QPoint(9, 9), Qt::LeftButton);
            QVERIFY2(dialog.pos() == after, name);
        }
    }

    void shouldCloseByEscapeAndByItsButton()
    {
        Dialog dialog;
        dialog.appear();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        dialog.appear();
        QTest::mouseClick(dialog.find("toolButtonClose"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(HandWriteDialogTest)
#include "tst_handwritedialog.moc"
