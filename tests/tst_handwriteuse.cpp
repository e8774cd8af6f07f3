#include "tests/support/HandWriting.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>

namespace {

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

/** The dialog of handwriting under the hands of a user. */
class HandWriteUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clicksKeepOneButtonOfAGroupChecked()
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

    void keyboardMovesTheSlider()
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

    void tabKeyFollowsTheEye()
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
        QCOMPARE(
            visited.join(QLatin1Char(' ')),
            QStringLiteral("pushButtonColor3 pushButtonFetch labelOtherSelect spliderThickness "
                           "pushButtonOpacity25p pushButtonTrack3 pushButtonRegionWrite "
                           "pushButtonRegionWriteSet toolButtonClose"));
    }

    void previewFollowsTheSettings()
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

    void draggingMovesTheDialogUnlessAControlIsPressed_data()
    {
        QTest::addColumn<bool>("drags");
        QTest::newRow("widgetSettings") << true;
        QTest::newRow("widgetColorSelect") << true;
        QTest::newRow("labelPreview") << true;
        QTest::newRow("labelThicknessUnit") << true;
        QTest::newRow("spliderThickness") << false;
        QTest::newRow("pushButtonTrack2") << false;
    }

    void draggingMovesTheDialogUnlessAControlIsPressed()
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

    void closesByEscapeAndByItsButton()
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
};

QTEST_MAIN(HandWriteUseTest)
#include "tst_handwriteuse.moc"
