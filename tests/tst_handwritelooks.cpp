// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/handwrite/MRHandWriteDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

namespace {

/** How far the most distinct pixel of the widget, as it is seen, is from its ground. */
int strongestContrast(QWidget *widget)
{
    QWidget *window = widget->window();
    const QRect place(widget->mapTo(window, QPoint(4, 4)), widget->size() - QSize(8, 8));
    const QImage image = window->grab(place).toImage();
    const int ground = qGray(image.pixel(0, 0));
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            strongest = qMax(strongest, qAbs(qGray(image.pixel(x, y)) - ground));
    }
    return strongest;
}

/** The controls of a new dialog that cannot be read. */
QStringList faintControls()
{
    MRHandWriteDialog dialog;
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return {QStringLiteral("The dialog does not appear")};
    QStringList faint;
    for (const char *name :
         {"labelTitle", "labelColor", "labelOtherSelect", "labelThickness", "labelOpacity50p",
          "pushButtonFetch", "pushButtonTrack2", "pushButtonRegionWrite", "toolButtonClose"}) {
        auto *control = dialog.findChild<QWidget *>(name);
        if (!control || strongestContrast(control) < 90)
            faint.append(name);
    }
    if (dialog.findChild<QWidget *>("pushButtonColor1")->width() != 38)
        faint.append(QStringLiteral("The swatches have lost their size"));
    return faint;
}

} // namespace

/** The handwriting dialog in applications with looks of their own. */
class HandWriteLooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStayReadableInAnyApplication_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("plain") << QString() << qApp->palette();
        QTest::newRow("dark palette") << QString() << QPalette(0x303030);
        QTest::newRow("dark sheet")
            << "QWidget{background:#222;color:#eee;min-width:90px;}" << qApp->palette();
    }

    void shouldStayReadableInAnyApplication()
    {
        QFETCH(QString, sheet);
        QFETCH(QPalette, palette);
        const QPalette usual = qApp->palette();
        qApp->setPalette(palette);
        qApp->setStyleSheet(sheet);
        const QStringList faint = faintControls();
        qApp->setStyleSheet(QString());
        qApp->setPalette(usual);
        QVERIFY2(faint.isEmpty(), qPrintable(faint.join(' ')));
    }
};

QTEST_MAIN(HandWriteLooksTest)
#include "tst_handwritelooks.moc"
