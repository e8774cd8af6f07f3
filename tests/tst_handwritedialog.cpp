#include "toolbar/handwrite/MRHandWriteDialog.h"

#include <QtTest>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTextDocument>

#include <memory>
#include <vector>

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

QPushButton *numbered(const QDialog &dialog, const char *name, int index)
{
    return dialog.findChild<QPushButton *>(QLatin1String(name) + QString::number(index + 1));
}

QPushButton *colourButton(const QDialog &dialog, int index)
{
    return numbered(dialog, "pushButtonColor", index);
}

QPushButton *trackButton(const QDialog &dialog, int index)
{
    return numbered(dialog, "pushButtonTrack", index);
}

QColor swatchColour(const QDialog &dialog, int index)
{
    const QIcon icon = colourButton(dialog, index)->icon();
    return icon.pixmap(QSize(35, 35)).toImage().pixelColor(17, 17);
}

/** The places of the checked buttons of a group, counted from 0 in the order of the form. */
QList<int> checkedIn(const QDialog &dialog, const char *groupName)
{
    QList<int> places;
    const auto *group = dialog.findChild<QButtonGroup *>(QLatin1String(groupName));
    const QList<QAbstractButton *> buttons = group->buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        if (buttons.at(i)->isChecked())
            places.append(i);
    }
    return places;
}

QList<int> only(int place)
{
    return place < 0 ? QList<int>() : QList<int>{place};
}

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

/** Track records as a host would own them. */
class Tracks
{
public:
    explicit Tracks(int count, int selected = -1)
    {
        for (int i = 0; i < count; ++i) {
            m_records.push_back(std::make_unique<Track>());
            *m_records.back() = {i, Qt::blue, 3, 10, 0, i == selected, QString()};
            list.append(m_records.back().get());
        }
    }
    Track &operator[](int index) { return *m_records.at(size_t(index)); }

    QList<Track *> list;

private:
    std::vector<std::unique_ptr<Track>> m_records;
};

QString pictureFile(const QTemporaryDir &folder)
{
    QPixmap picture(60, 40);
    picture.fill(Qt::darkGray);
    const QString path = folder.filePath(QStringLiteral("pen.png"));
    return picture.save(path) ? path : QString();
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &global, Qt::MouseButton button)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, widget->mapFromGlobal(global), global, isMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

Q_DECLARE_METATYPE(Track *)

class HandWriteDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialogShowsDefaults();
    void formShowsItsTexts_data();
    void formShowsItsTexts();
    void everyPictureButtonHasAnAccessibleName();
    void isAFramelessWindowEvenWithAParent();
    void colourListsOfAnyLengthDressTheFirstSwatches_data();
    void colourListsOfAnyLengthDressTheFirstSwatches();
    void selectedTrackIsShown_data();
    void selectedTrackIsShown();
    void onlyASingleTrackGetsItsPicture_data();
    void onlyASingleTrackGetsItsPicture();
    void noSelectedTrackLeavesTheSettings_data();
    void noSelectedTrackLeavesTheSettings();
    void laterTrackReplacesTheEarlierOne();
    void trackListIsHandedBackAndRecordsStayUntouched();
    void clicksKeepOneButtonOfAGroupChecked();
    void keyboardMovesTheSlider();
    void tabKeyFollowsTheEye();
    void previewFollowsTheSettings();
    void draggingMovesTheDialogUnlessAControlIsPressed_data();
    void draggingMovesTheDialogUnlessAControlIsPressed();
    void closesByEscapeAndByItsButton();
    void regionSizeAndSignalsAreTheHosts();
};

void HandWriteDialogTest::newDialogShowsDefaults()
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

void HandWriteDialogTest::formShowsItsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("labelOtherSelect") << QString::fromUtf8("其他颜色");
    QTest::newRow("labelPreview") << QString::fromUtf8("图片预览区域");
    QTest::newRow("pushButtonRegionWrite") << QString::fromUtf8("区域手写");
    QTest::newRow("labelOpacity25p") << QStringLiteral("25%");
    QTest::newRow("labelOpacity100p") << QStringLiteral("100%");
}

void HandWriteDialogTest::formShowsItsTexts()
{
    const MRHandWriteDialog dialog;
    const auto *widget = dialog.findChild<QWidget *>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(widget);
    QTextDocument shown;
    shown.setHtml(widget->property("text").toString());
    QTEST(shown.toPlainText(), "text");
}

void HandWriteDialogTest::everyPictureButtonHasAnAccessibleName()
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

void HandWriteDialogTest::isAFramelessWindowEvenWithAParent()
{
    QWidget parent;
    const MRHandWriteDialog dialog(&parent);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowFlags() & ~Qt::WindowType_Mask, Qt::WindowFlags(Qt::FramelessWindowHint));
}

void HandWriteDialogTest::colourListsOfAnyLengthDressTheFirstSwatches_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 3, 10, 12})
        QTest::addRow("%d colours", count) << count;
}

void HandWriteDialogTest::colourListsOfAnyLengthDressTheFirstSwatches()
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

void HandWriteDialogTest::selectedTrackIsShown_data()
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

void HandWriteDialogTest::selectedTrackIsShown()
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

void HandWriteDialogTest::onlyASingleTrackGetsItsPicture_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 2, 6, 9})
        QTest::addRow("%d tracks", count) << count;
}

void HandWriteDialogTest::onlyASingleTrackGetsItsPicture()
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

void HandWriteDialogTest::noSelectedTrackLeavesTheSettings_data()
{
    QTest::addColumn<QList<Track *>>("tracks");
    static Track unselected;
    QTest::newRow("empty list") << QList<Track *>();
    QTest::newRow("none selected") << QList<Track *>{&unselected, &unselected};
    QTest::newRow("null entries") << QList<Track *>{nullptr, &unselected, nullptr};
    QTest::newRow("a single null entry") << QList<Track *>{nullptr};
}

void HandWriteDialogTest::noSelectedTrackLeavesTheSettings()
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

void HandWriteDialogTest::laterTrackReplacesTheEarlierOne()
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

void HandWriteDialogTest::trackListIsHandedBackAndRecordsStayUntouched()
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

void HandWriteDialogTest::clicksKeepOneButtonOfAGroupChecked()
{
    MRHandWriteDialog dialog;
    Tracks tracks(6, 2);
    dialog.SetCommonTrackInfo(tracks.list);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));

    for (const char *name : {"buttonColorGroup", "buttonOpacityGroup", "buttonTrackGroup"}) {
        const auto *group = dialog.findChild<QButtonGroup *>(QLatin1String(name));
        const QList<QAbstractButton *> buttons = group->buttons();
        for (int click = 0; click < 2 * buttons.size(); ++click) {
            QTest::mouseClick(buttons.at(click / 2), Qt::LeftButton);
            QCOMPARE(checkedIn(dialog, name), only(click / 2));
        }
    }
}

void HandWriteDialogTest::keyboardMovesTheSlider()
{
    MRHandWriteDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *slider = dialog.findChild<QSlider *>("spliderThickness");
    const auto *number = dialog.findChild<QLabel *>("labelThickness");
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(number->text(), QStringLiteral("9"));
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(number->text(), QStringLiteral("0"));
    // Enter on a control must not press some button that happens to be the default.
    QTest::keyClick(slider, Qt::Key_Return);
    QCOMPARE(checkedIn(dialog, "buttonColorGroup"), only(-1));
    QVERIFY(dialog.isVisible());
}

void HandWriteDialogTest::tabKeyFollowsTheEye()
{
    MRHandWriteDialog dialog;
    Tracks tracks(6, 2);
    dialog.SetCommonTrackInfo(tracks.list);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QStringList visited;
    colourButton(dialog, 2)->setFocus();
    do {
        visited.append(dialog.focusWidget()->objectName());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    } while (dialog.focusWidget() != colourButton(dialog, 2) && visited.size() < 50);
    // A label takes the focus before its link does.
    visited.removeDuplicates();
    QCOMPARE(visited.join(QLatin1Char(' ')),
             QStringLiteral("pushButtonColor3 pushButtonFetch labelOtherSelect spliderThickness "
                            "pushButtonOpacity25p pushButtonTrack3 pushButtonRegionWrite "
                            "pushButtonRegionWriteSet toolButtonClose"));
}

void HandWriteDialogTest::previewFollowsTheSettings()
{
    MRHandWriteDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *preview = dialog.findChild<QLabel *>("labelPreview");
    auto *slider = dialog.findChild<QSlider *>("spliderThickness");
    const QString placeholder = QString::fromUtf8("图片预览区域");
    QCOMPARE(preview->text(), placeholder);

    QTest::mouseClick(colourButton(dialog, 0), Qt::LeftButton);
    const int thick = pixelsOf(preview, Qt::red);
    slider->setValue(4);
    const int thin = pixelsOf(preview, Qt::red);
    QVERIFY2(thin > 100 && thick > thin * 3 / 2, qPrintable(QString::number(thin)));
    QTest::mouseClick(dialog.findChild<QPushButton *>("pushButtonOpacity25p"), Qt::LeftButton);
    QCOMPARE(pixelsOf(preview, Qt::red), 0);

    Tracks tracks(6, 2);
    tracks[2].opacity = 3;
    dialog.SetCommonTrackInfo(tracks.list);
    QVERIFY(pixelsOf(preview, Qt::blue) > 100);
    slider->setValue(0);
    QCOMPARE(preview->text(), placeholder);
}

void HandWriteDialogTest::draggingMovesTheDialogUnlessAControlIsPressed_data()
{
    QTest::addColumn<bool>("drags");
    QTest::newRow("widgetSettings") << true;
    QTest::newRow("widgetColorSelect") << true;
    QTest::newRow("labelPreview") << true;
    QTest::newRow("labelThicknessUnit") << true;
    QTest::newRow("spliderThickness") << false;
    QTest::newRow("pushButtonTrack2") << false;
}

void HandWriteDialogTest::draggingMovesTheDialogUnlessAControlIsPressed()
{
    QFETCH(bool, drags);
    MRHandWriteDialog dialog;
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *widget = dialog.findChild<QWidget *>(QLatin1String(QTest::currentDataTag()));
    const QPoint before = dialog.pos();
    const QPoint press = widget->mapToGlobal(QPoint(3, 3));

    sendMouse(widget, QEvent::MouseButtonPress, press, Qt::LeftButton);
    QCOMPARE(dialog.pos(), before);
    for (const QPoint &step : {QPoint(7, -4), QPoint(60, 45), QPoint(-30, 20)}) {
        sendMouse(widget, QEvent::MouseMove, press + step, Qt::LeftButton);
        QCOMPARE(dialog.pos(), drags ? before + step : before);
    }
    sendMouse(widget, QEvent::MouseButtonRelease, press, Qt::LeftButton);
    const QPoint after = dialog.pos();
    // A move that belongs to no press on the dialog, as one that a control lets through.
    sendMouse(widget, QEvent::MouseMove, press + QPoint(9, 9), Qt::LeftButton);
    QCOMPARE(dialog.pos(), after);
}

void HandWriteDialogTest::closesByEscapeAndByItsButton()
{
    MRHandWriteDialog dialog;
    for (const bool byKey : {true, false}) {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        if (byKey)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            QTest::mouseClick(dialog.findChild<QWidget *>("toolButtonClose"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }
}

void HandWriteDialogTest::regionSizeAndSignalsAreTheHosts()
{
    MRHandWriteDialog dialog;
    QSignalSpy updated(&dialog, SIGNAL(DoUpdateRegionDefaultSize(int)));
    QVERIFY(updated.isValid());
    QVERIFY(dialog.metaObject()->indexOfSignal("DoUpdateCommonTrackInfo(QList<HandTrack*>&)") >= 0);
    QCOMPARE(dialog.GetRegionSize(), 0);
    dialog.SetRegionSize(42);
    QCOMPARE(dialog.GetRegionSize(), 42);
    QCOMPARE(updated.count(), 0);
}

QTEST_MAIN(HandWriteDialogTest)
#include "tst_handwritedialog.moc"
