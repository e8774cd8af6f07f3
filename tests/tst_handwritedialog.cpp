// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Icons.h"
#include "tests/support/Rows.h"
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
    return pixelsOf(widget->grab().toImage(), [&](const QColor &pixel) { return pixel == colour; });
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global, Qt::MouseButton button)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, widget->mapFromGlobal(global), global, isMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/** What the dialog shows of a selected track. */
const struct
{
    const char *name;
    int count, selected;
    QColor colour;
    int opacity, checkedTrack, checkedColour, checkedOpacity;
} selections[]{
    {"third of six", 6, 2, Qt::cyan, 0, 2, 2, 0},
    {"colour without swatch", 6, 2, QColor(1, 2, 3), 1, 2, -1, 1},
    {"first of six stays unchecked", 6, 0, Qt::cyan, 2, -1, 0, 2},
    {"single one stays unchecked", 1, 0, Qt::cyan, 3, -1, 0, 3},
    {"opacity too large", 6, 5, Qt::cyan, 4, 5, 5, -1},
    {"opacity negative", 6, 5, Qt::cyan, -1, 5, 5, -1},
    {"track behind the track buttons", 12, 7, Qt::cyan, 1, -1, 7, 1},
    {"track behind all buttons", 12, 11, Qt::cyan, 1, -1, -1, 1},
};

/** The controls of a new dialog that cannot be read. */
QStringList faintControls()
{
    Dialog dialog;
    dialog.appear();
    QStringList faint;
    for (const char *name :
         {"labelTitle", "labelColor", "labelOtherSelect", "labelThickness", "labelOpacity50p",
          "pushButtonFetch", "pushButtonTrack2", "pushButtonRegionWrite", "toolButtonClose"}) {
        const auto *control = dialog.find(name);
        if (!control || strongestMark(seen(control, control->rect().adjusted(4, 4, -4, -4))) < 90)
            faint.append(name);
    }
    if (dialog.colourButton(0)->width() != 38)
        faint.append(QStringLiteral("The swatches have lost their size"));
    return faint;
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
        Dialog dialog(&parent);
        QVERIFY(dialog.isWindow());
        QCOMPARE(dialog.windowFlags() & ~Qt::WindowType_Mask,
                 Qt::WindowFlags(Qt::FramelessWindowHint));
        for (int i = 0; i < 10; ++i) {
            const QPushButton *button = dialog.colourButton(i);
            QCOMPARE(dialog.swatchColour(i), colours.at(i));
            QCOMPARE(button->iconSize(), QSize(35, 35));
            QVERIFY(button->minimumSize() == QSize(38, 38) && button->maximumWidth() == 38);
            QVERIFY(button->isFlat() && button->isCheckable() && !button->isChecked());
        }
        QVERIFY(dialog.slider()->maximum() == 10 && dialog.slider()->value() == 8);
        QCOMPARE(dialog.thickness(), QString("8"));
        QVERIFY(dialog.GetRegionSize() == 0 && dialog.GetCommonTrackInfo().isEmpty());
    }

    void shouldStayReadableInAnyApplication()
    {
        const QPalette usual = qApp->palette();
        const QList<std::pair<QPalette, const char *>> looks{
            {usual, ""},
            {QPalette(0x303030), ""},
            {usual, "QWidget{background:#222;color:#eee;min-width:90px;}"}};
        for (const auto &[palette, sheet] : looks) {
            qApp->setPalette(palette);
            qApp->setStyleSheet(sheet);
            const QStringList faint = faintControls();
            qApp->setStyleSheet(QString());
            qApp->setPalette(usual);
            QCOMPARE(faint, QStringList());
        }
    }

    void shouldColourAndNameTheFirstSwatchesByAListOfAnyLength()
    {
        const Dialog untouched;
        const QList<QAbstractButton *> buttons = untouched.findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            const bool isNamed = !button->accessibleName().isEmpty() || button->text().size() > 1;
            QVERIFY2(isNamed, qPrintable(button->objectName()));
        }
        QCOMPARE(untouched.colourButton(5)->accessibleName(), QString("蓝色"));
        for (const int count : {0, 3, 12}) {
            Dialog dialog;
            QList<QColor> colours;
            for (int i = 0; i < count; ++i)
                colours.append(QColor(10 * i, 100, 200));
            dialog.SetCommonColor(colours);
            for (int i = 0; i < 10; ++i)
                QCOMPARE(dialog.swatchColour(i), colours.value(i, untouched.swatchColour(i)));
            QCOMPARE(dialog.colourButton(0)->accessibleName(),
                     count == 0 ? QString("红色") : QString("#0064c8"));
        }
    }

    void shouldShowTheSelectedTrack_data() { addRows(selections); }

    void shouldShowTheSelectedTrack()
    {
        const auto &row = rowOf(selections);
        Dialog dialog;
        Tracks tracks(row.count, row.selected);
        tracks[row.selected] = {row.selected, row.colour, 17, 25, row.opacity, true, QString()};
        dialog.SetCommonTrackInfo(tracks.list);
        QCOMPARE(dialog.checkedIn("buttonTrackGroup"), row.checkedTrack);
        QCOMPARE(dialog.checkedIn("buttonColorGroup"), row.checkedColour);
        QCOMPARE(dialog.checkedIn("buttonOpacityGroup"), row.checkedOpacity);
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
                QVERIFY(button->isCheckable() && button->isFlat());
                QVERIFY(button->icon().isNull() != isDressed);
                QVERIFY(button->text().isEmpty() == isDressed);
                QVERIFY((button->iconSize() == QSize(60, 40)) == isDressed);
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
        QVERIFY(dialog.slider()->minimum() == 0 && dialog.slider()->value() == 3);
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
        Tracks tracks(6, 2);
        dialog.SetRegionSize(42);
        dialog.SetCommonTrackInfo(tracks.list);
        dialog.colourButton(0)->click();
        dialog.trackButton(4)->click();
        dialog.slider()->setValue(9);
        QCOMPARE(dialog.GetRegionSize(), 42);
        QCOMPARE(dialog.GetCommonTrackInfo(), tracks.list);
        QVERIFY(tracks[2].colour == QColor(Qt::blue) && tracks[2].thickness == 3);
        QVERIFY(tracks[2].selected && !tracks[4].selected);
        QVERIFY(updated.isEmpty() && changed.isEmpty());
    }

    void shouldKeepOneButtonOfAGroupCheckedOnClicks()
    {
        Dialog dialog;
        Tracks tracks(6, 2);
        dialog.SetCommonTrackInfo(tracks.list);
        for (const char *name : {"buttonColorGroup", "buttonOpacityGroup", "buttonTrackGroup"}) {
            for (const int clicked : {1, 1, 3}) {
                dialog.find<QButtonGroup>(name)->buttons().at(clicked)->click();
                QCOMPARE(dialog.checkedIn(name), clicked);
            }
        }
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

    void shouldCloseByEscapeAndItsButtonButNotByEnter()
    {
        Dialog dialog;
        dialog.appear();
        QTest::keyClick(dialog.slider(), Qt::Key_Right);
        QCOMPARE(dialog.thickness(), QString("9"));
        // Enter on a control must not click a default button.
        QTest::keyClick(dialog.slider(), Qt::Key_Return);
        QVERIFY(dialog.isVisible() && dialog.checkedIn("buttonColorGroup") == -1);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        dialog.appear();
        QTest::mouseClick(dialog.find("toolButtonClose"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }
};

QTEST_MAIN(HandWriteDialogTest)
#include "tst_handwritedialog.moc"
