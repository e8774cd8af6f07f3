// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Icons.h"
#include "tests/support/TestHost.h"
#include "toolbar/handwrite/MRHandWriteDialog.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/skin/IconColours.h"
#include "toolbar/skin/SchemeColours.h"

#include <QApplication>
#include <QDirIterator>
#include <QMenu>
#include <QPainter>

#include <algorithm>

using SkinMap = QMap<QString, QString>;

namespace {

const QString schemeKey = "scheme";
const QRgb green = 0xff1b7a3d;

/** Gives the application a palette for the time of one test. */
class PaletteChoice
{
public:
    PaletteChoice()
        : m_previous(QApplication::palette())
    {
    }
    ~PaletteChoice() { QApplication::setPalette(m_previous); }
    Q_DISABLE_COPY_MOVE(PaletteChoice)

    void makeDark() { QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30))); }
    void makeLight() { QApplication::setPalette(m_previous); }

private:
    QPalette m_previous;
};

QImage picture(const TestHost &host)
{
    return host.toolBar()->grab().toImage();
}

QImage menuPicture(const TestHost &host)
{
    auto *menu = host.find<QMenu>("menu_file");
    menu->popup(QPoint(100, 100));
    const QImage image = menu->grab().toImage();
    menu->hide();
    return image;
}

bool isDark(const QImage &image)
{
    double sum = 0;
    const int count = pixelsOf(image, [&sum](const QColor &colour) {
        sum += qGray(colour.rgb());
        return true;
    });
    return sum / count / 255 < 0.4;
}

bool isBlue(const QColor &colour)
{
    const int hue = colour.hsvHue();
    return colour.alpha() > 0 && colour.hsvSaturation() > 60 && hue > 180 && hue < 250;
}

} // namespace

/** The schemes that a skin map may choose, and what they reach. */
class SchemesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMeasureContrastAsTheGuidelinesDo()
    {
        QCOMPARE(Contrast::ratio(Qt::black, Qt::white), 21.0);
        QCOMPARE(Contrast::ratio(Qt::red, Qt::red), 1.0);
        const double grey = Contrast::ratio(QColor(0x77, 0x77, 0x77), Qt::white);
        QVERIFY2(std::abs(grey - 4.478) < 0.001, qPrintable(QString::number(grey)));
    }

    void shouldTellFocusFramesAndDividersFromTheirGrounds()
    {
        for (const Scheme scheme : {Scheme::Dark, Scheme::Contrast}) {
            const double least = scheme == Scheme::Dark ? 3.0 : 4.5;
            for (const QRgb mainColour : {0xff008ad9, 0xffc1272d, 0xffffd400, 0xff101214}) {
                const SchemeColours colours = schemeColours({scheme, mainColour});
                QVERIFY(Contrast::ratio(colours.focus, colours.field) >= least);
                QVERIFY(Contrast::ratio(colours.frame, colours.surface) >= least);
                QVERIFY(scheme == Scheme::Dark
                        || Contrast::ratio(colours.divider, colours.surface) >= least);
            }
        }
    }

    /** Of a drawing some lines are details on its own body; its strongest colour is what counts. */
    void shouldShowEveryDrawingOnEveryGround()
    {
        for (const Scheme scheme : {Scheme::Dark, Scheme::Contrast}) {
            const SchemeColours colours = schemeColours({scheme, green});
            QDirIterator files(":/mr_toolbar/Resources", {"*.svg", "*.png"}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString path = files.next();
                // The others are for one scheme, and the sheets name them.
                if (!path.contains("/icons/") && !path.contains("/extend"))
                    continue;
                const QImage image =
                    IconColours::drawing(path, {scheme, green}).pixmap(48, 48).toImage();
                QVERIFY2(!image.isNull(), qPrintable(path));
                QVERIFY2(pixelsOf(image, isBlue) == 0, qPrintable(path + " is blue, not green"));
                double highest = 1;
                pixelsOf(image, [&](const QColor &colour) {
                    if (colour.alpha() > 250)
                        highest = std::max(highest, Contrast::ratio(colour, colours.pressed));
                    return false;
                });
                QVERIFY2(highest >= colours.iconContrast, qPrintable(path + " is too dark"));
            }
        }
    }

    /** Apart from being read once only, and not twice as Qt's own icon of the file is. */
    void shouldLeaveLightDrawingsAsTheyAre()
    {
        QDirIterator files(":/mr_toolbar/Resources", {"*.svg"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QSize own = QIcon(path).actualSize(QSize(33, 33));
            for (const QSize &size : {own, own * 2, own + QSize(own.height(), 0)}) {
                const auto picture = [&size](const QIcon &icon) {
                    QImage image(size, QImage::Format_ARGB32_Premultiplied);
                    image.fill(Qt::transparent);
                    QPainter painter(&image);
                    icon.paint(&painter, image.rect());
                    return image;
                };
                QVERIFY2(picture(IconColours::drawing(path, {})) == picture(QIcon(path)),
                         qPrintable(path));
            }
        }
    }

    void shouldNotTakeTheSchemeForAColour_data() { addSkins(); }

    void shouldNotTakeTheSchemeForAColour()
    {
        const SkinChoice choice;
        const SkinMap red{{"[MainColor]", "red"}};
        const QList<std::pair<SkinMap, SkinMap>> maps{
            {{{schemeKey, "light"}}, {}},
            {{{schemeKey, "Dark"}}, {}},
            {{{schemeKey, "light"}, {"[MainColor]", "red"}}, red}};
        for (const auto &[given, colours] : maps) {
            const auto host = TestHost::withRelease(given);
            const auto expected = TestHost::withRelease(colours);
            QCOMPARE(host->sheet(), expected->sheet());
            host->show();
            expected->show();
            QCOMPARE(picture(*host), picture(*expected));
        }
    }

    void shouldKeepWhatASwitchDoesNotName()
    {
        TestHost host("", {{"[ToolBarBgColor]", "#ABCDEF"}});
        const QString light = host.sheet();
        host.facade().DoSetSkinStyleSlot({{schemeKey, "dark"}});
        const QString dark = host.sheet();
        QVERIFY2(dark.startsWith(light.left(200)) && dark.contains("#ABCDEF"), "Colours are lost");
        QVERIFY(dark != light);
        host.facade().DoSetSkinStyleSlot({{schemeKey, "no such scheme"}});
        QCOMPARE(host.sheet(), dark);
        host.facade().DoSetSkinStyleSlot({{"[ToolBarBgColor]", "#FEDCBA"}});
        QVERIFY2(host.sheet().size() == dark.size(), "The scheme is lost");
        host.facade().DoSetSkinStyleSlot({{schemeKey, "light"}, {"[ToolBarBgColor]", "#ABCDEF"}});
        QCOMPARE(host.sheet(), light);
    }

    void shouldTellAHostThatAppliesTheSheetItself()
    {
        TestHost host("", {{"externalqss", ""}, {schemeKey, "dark"}});
        const QString dark = host.facade().GetToolBarStyleSheet();
        QVERIFY(dark.contains("/dark/") && host.sheet().isEmpty());
        host.facade().DoSetSkinStyleSlot({{schemeKey, "light"}});
        QVERIFY(!host.facade().GetToolBarStyleSheet().contains("/dark/"));
    }

    void shouldComeBackToThePixel_data() { addSkins(); }

    void shouldComeBackToThePixel()
    {
        const SkinChoice choice;
        PaletteChoice palette;
        const auto host = TestHost::withRelease({{schemeKey, "system"}});
        host->show();
        host->enableEverything();
        host->toolBar()->Inner_DoDelayLoadMenuSlot();
        MRHandWriteDialog dialog(&host->window());
        const auto look = [&] {
            return QList<QImage>{picture(*host), menuPicture(*host), dialog.grab().toImage()};
        };
        const QList<QImage> before = look();
        QCOMPARE(std::count_if(before.begin(), before.end(), isDark), 0);
        palette.makeDark();
        QTRY_VERIFY(isDark(picture(*host)));
        const QList<QImage> dark = look();
        QCOMPARE(std::count_if(dark.begin(), dark.end(), isDark), 3);
        palette.makeLight();
        QTRY_VERIFY(!isDark(picture(*host)));
        const QList<QImage> after = look();
        for (int i = 0; i < before.size(); ++i)
            QVERIFY2(before.at(i) == after.at(i), qPrintable(QStringLiteral("picture %1").arg(i)));
    }

    void shouldSwitchBeforeItIsShownAndTakeNoColourFromThePalette()
    {
        PaletteChoice palette;
        const auto dark = TestHost::withRelease({{schemeKey, "dark"}});
        const auto switched = TestHost::withRelease();
        switched->facade().DoSetSkinStyleSlot({{schemeKey, "dark"}});
        for (const auto *host : {&dark, &switched})
            (*host)->show();
        const QImage onLight = picture(*dark);
        QCOMPARE(picture(*switched), onLight);
        palette.makeDark();
        QCOMPARE(picture(*dark), onLight);
    }

    void shouldServeTwoToolBarsWithTwoSchemes()
    {
        const auto dark = TestHost::withRelease({{schemeKey, "dark"}});
        const auto light = TestHost::withRelease({{schemeKey, "light"}});
        const auto plain = TestHost::withRelease();
        for (const auto *host : {&dark, &light, &plain})
            (*host)->show();
        QVERIFY(isDark(picture(*dark)));
        QCOMPARE(picture(*light), picture(*plain));
        QVERIFY(!isDark(picture(*light)));
        const QString name = "t_handtool";
        const auto iconOf = [&name](const TestHost &host) {
            return host.action(name)->icon().pixmap(24).toImage();
        };
        const QImage lightIcon = iconOf(*light);
        QVERIFY(iconOf(*dark) != lightIcon);
        dark->facade().DoSetSkinStyleSlot({{schemeKey, "light"}});
        QCOMPARE(iconOf(*dark), lightIcon);
        const QIcon icon = dark->action(name)->icon();
        dark->deleteWindow();
        QVERIFY2(!icon.pixmap(24).isNull(), "The icon does not outlive its toolbar");
    }

    void shouldDressTheHostsOwnWindowsLikeItsToolBar()
    {
        const auto isDarkNow = [](QWidget *widget) { return isDark(widget->grab().toImage()); };
        QWidget elsewhere;
        MRHandWriteDialog stray(&elsewhere);
        QVERIFY(!isDarkNow(&stray));
        auto dark = std::make_unique<TestHost>("", SkinMap{{schemeKey, "dark"}});
        MRHandWriteDialog ofDark(&dark->window());
        QVERIFY(isDarkNow(&ofDark) && isDarkNow(&stray));
        TestHost light("", {{schemeKey, "light"}});
        MRHandWriteDialog ofLight(&light.window());
        QVERIFY2(!isDarkNow(&stray), "The last choice is for those without a toolbar");
        QVERIFY(isDarkNow(&ofDark) && !isDarkNow(&ofLight));
        light.facade().DoSetSkinStyleSlot({{schemeKey, "dark"}});
        QVERIFY(isDarkNow(&ofLight) && isDarkNow(&stray));
    }
};

QTEST_MAIN(SchemesTest)
#include "tst_schemes.moc"
