// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/handwrite/MRHandWriteDialog.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/skin/IconColours.h"
#include "toolbar/skin/SchemeColours.h"
#include "toolbar/widgets/CCR_ToolTipWidget.h"

#include <QApplication>
#include <QDirIterator>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

using SkinMap = QMap<QString, QString>;

namespace {

const QString schemeKey = "scheme";
const QRgb mainColours[] = {0xff008ad9, 0xff1b7a3d, 0xffc1272d, 0xffffd400, 0xff101214};

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

QString shippedDocument(int skin)
{
    return skin == lum ? "lum/mr_toolbar.release.xml" : "marodi/mr_toolbar.release.xml";
}

QString appliedSheet(const TestHost &host)
{
    return host.find<QToolBar>("mrtoolbar")->styleSheet();
}

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

double lightness(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qGray(image.pixel(x, y));
    }
    return sum / image.width() / image.height() / 255;
}

bool isDark(const QImage &image)
{
    return lightness(image) < 0.4;
}

bool hasBlue(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            const int hue = colour.hsvHue();
            if (colour.alpha() > 0 && colour.hsvSaturation() > 60 && hue > 180 && hue < 250)
                return true;
        }
    }
    return false;
}

QList<QColor> groundsOf(const SchemeColours &colours)
{
    return {colours.strip, colours.surface, colours.raised,       colours.field,
            colours.hover, colours.pressed, colours.checkedHover, colours.checked};
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

    void shouldReachTheContrastOfTheScheme()
    {
        for (const Scheme scheme : {Scheme::Dark, Scheme::Contrast}) {
            const double text = scheme == Scheme::Dark ? 4.5 : 7.0;
            const double icon = scheme == Scheme::Dark ? 3.0 : 4.5;
            for (const QRgb mainColour : mainColours) {
                const SchemeColours colours = schemeColours({scheme, mainColour});
                for (const QColor &ground : groundsOf(colours)) {
                    QVERIFY(Contrast::ratio(colours.text, ground) >= text);
                    QVERIFY(Contrast::ratio(colours.accent, ground) >= icon);
                }
                // The pointer does nothing to what is disabled.
                for (const QColor &ground : {colours.strip, colours.surface, colours.checked})
                    QVERIFY(Contrast::ratio(colours.dimText, ground) >= 3.0);
                QVERIFY(Contrast::ratio(colours.onAccent, colours.accent) >= text);
                QVERIFY(Contrast::ratio(colours.focus, colours.field) >= icon);
                QVERIFY(Contrast::ratio(colours.frame, colours.surface) >= icon);
                if (scheme == Scheme::Contrast)
                    QVERIFY(Contrast::ratio(colours.divider, colours.surface) >= 4.5);
            }
        }
    }

    /** Of a drawing some lines are details on its own body; its strongest colour is what counts. */
    void shouldShowEveryDrawingOnEveryGround()
    {
        for (const Scheme scheme : {Scheme::Dark, Scheme::Contrast}) {
            const SchemeColours colours = schemeColours({scheme, mainColours[1]});
            QDirIterator files(":/mr_toolbar/Resources", {"*.svg", "*.png"}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString path = files.next();
                // The others are for one scheme, and the sheets name them.
                if (!path.contains("/icons/") && !path.contains("/extend"))
                    continue;
                const QImage image =
                    IconColours::drawing(path, {scheme, mainColours[1]}).pixmap(48, 48).toImage();
                QVERIFY2(!image.isNull(), qPrintable(path));
                QVERIFY2(!hasBlue(image), qPrintable(path + " is blue in a green skin"));
                double highest = 1;
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        const QColor colour = image.pixelColor(x, y);
                        if (colour.alpha() > 250)
                            highest = std::max(highest, Contrast::ratio(colour, colours.pressed));
                    }
                }
                QVERIFY2(highest >= colours.iconContrast, qPrintable(path + " is too dark"));
            }
        }
    }

    void shouldNotTakeTheSchemeForAColour_data()
    {
        QTest::addColumn<SkinMap>("given");
        QTest::addColumn<SkinMap>("colours");
        QTest::newRow("light") << SkinMap{{schemeKey, "light"}} << SkinMap{};
        QTest::newRow("no such scheme") << SkinMap{{schemeKey, "Dark"}} << SkinMap{};
        QTest::newRow("with a colour") << SkinMap{{schemeKey, "light"}, {"[MainColor]", "red"}}
                                       << SkinMap{{"[MainColor]", "red"}};
    }

    void shouldNotTakeTheSchemeForAColour()
    {
        QFETCH(SkinMap, given);
        QFETCH(SkinMap, colours);
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            const auto host = TestHost::withShipped(shippedDocument(skin), given);
            const auto expected = TestHost::withShipped(shippedDocument(skin), colours);
            QCOMPARE(appliedSheet(*host), appliedSheet(*expected));
            host->show();
            expected->show();
            QCOMPARE(picture(*host), picture(*expected));
        }
    }

    void shouldKeepWhatASwitchDoesNotName()
    {
        TestHost host("", {{"[ToolBarBgColor]", "#ABCDEF"}});
        const QString light = appliedSheet(host);
        host.facade().DoSetSkinStyleSlot({{schemeKey, "dark"}});
        const QString dark = appliedSheet(host);
        QVERIFY2(dark.startsWith(light.left(200)) && dark.contains("#ABCDEF"), "Colours are lost");
        QVERIFY(dark != light);

        host.facade().DoSetSkinStyleSlot({{schemeKey, "no such scheme"}});
        QCOMPARE(appliedSheet(host), dark);
        host.facade().DoSetSkinStyleSlot({{"[ToolBarBgColor]", "#FEDCBA"}});
        QVERIFY2(appliedSheet(host).size() == dark.size(), "The scheme is lost");
        host.facade().DoSetSkinStyleSlot({{schemeKey, "light"}, {"[ToolBarBgColor]", "#ABCDEF"}});
        QCOMPARE(appliedSheet(host), light);
    }

    void shouldTellAHostThatAppliesTheSheetItself()
    {
        TestHost host("", {{"externalqss", ""}, {schemeKey, "dark"}});
        const QString dark = host.facade().GetToolBarStyleSheet();
        QVERIFY(dark.contains("/dark/") && appliedSheet(host).isEmpty());
        host.facade().DoSetSkinStyleSlot({{schemeKey, "light"}});
        QVERIFY(!host.facade().GetToolBarStyleSheet().contains("/dark/"));
    }

    void shouldComeBackToThePixel_data()
    {
        QTest::addColumn<int>("skin");
        QTest::newRow("marodi") << marodi;
        QTest::newRow("lum") << lum;
    }

    void shouldComeBackToThePixel()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        PaletteChoice palette;
        const auto host = TestHost::withShipped(shippedDocument(skin), {{schemeKey, "system"}});
        host->show();
        host->enableEverything();
        host->toolBar()->Inner_DoDelayLoadMenuSlot();
        MRHandWriteDialog dialog(&host->window());
        const QList<QImage> before{picture(*host), menuPicture(*host), dialog.grab().toImage()};
        for (const QImage &image : before)
            QVERIFY(!isDark(image));

        palette.makeDark();
        QTRY_VERIFY(isDark(picture(*host)));
        const QList<QImage> dark{picture(*host), menuPicture(*host), dialog.grab().toImage()};
        for (const QImage &image : dark)
            QVERIFY(isDark(image));

        palette.makeLight();
        QTRY_VERIFY(!isDark(picture(*host)));
        const QList<QImage> after{picture(*host), menuPicture(*host), dialog.grab().toImage()};
        for (int i = 0; i < before.size(); ++i) {
            before.at(i).save(QStringLiteral("before_%1.png").arg(i));
            after.at(i).save(QStringLiteral("after_%1.png").arg(i));
            QVERIFY2(before.at(i) == after.at(i), qPrintable(QStringLiteral("picture %1").arg(i)));
        }
    }

    void shouldSwitchBeforeItIsShown()
    {
        const auto dark = TestHost::withShipped(shippedDocument(marodi), {{schemeKey, "dark"}});
        const auto switched = TestHost::withShipped(shippedDocument(marodi));
        switched->facade().DoSetSkinStyleSlot({{schemeKey, "dark"}});
        for (const auto *host : {&dark, &switched})
            (*host)->show();
        QCOMPARE(picture(*switched), picture(*dark));
    }

    void shouldTakeNoColourFromThePalette()
    {
        PaletteChoice palette;
        const auto host = TestHost::withShipped(shippedDocument(marodi), {{schemeKey, "dark"}});
        host->show();
        const QImage onLight = picture(*host);
        palette.makeDark();
        QCOMPARE(picture(*host), onLight);
    }

    void shouldServeTwoToolBarsWithTwoSchemes()
    {
        const auto dark = TestHost::withShipped(shippedDocument(marodi), {{schemeKey, "dark"}});
        const auto light = TestHost::withShipped(shippedDocument(marodi), {{schemeKey, "light"}});
        const auto plain = TestHost::withShipped(shippedDocument(marodi));
        for (const auto *host : {&dark, &light, &plain})
            (*host)->show();
        QVERIFY(isDark(picture(*dark)));
        QCOMPARE(picture(*light), picture(*plain));
        QVERIFY(!isDark(picture(*light)));

        const QString name = "t_handtool";
        const QImage darkIcon = dark->action(name)->icon().pixmap(24).toImage();
        const QImage lightIcon = light->action(name)->icon().pixmap(24).toImage();
        QVERIFY(darkIcon != lightIcon);
        dark->facade().DoSetSkinStyleSlot({{schemeKey, "light"}});
        QCOMPARE(dark->action(name)->icon().pixmap(24).toImage(), lightIcon);
    }

    void shouldDrawAnIconThatOutlivesItsToolBar()
    {
        QIcon icon;
        {
            const auto host = TestHost::withShipped(shippedDocument(lum), {{schemeKey, "dark"}});
            icon = host->action("f_open")->icon();
        }
        QVERIFY(!icon.pixmap(24).isNull());
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
