// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "tests/support/WarningTrap.h"
#include "toolbar/skin/StyleSheet.h"

#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>

using SkinMap = QMap<QString, QString>;

namespace {

const QString external = "externalqss";
const SkinMap marodiDefaults{
    {"[MainColor]", "#008AD9"},          {"[LightColor]", "#FFFFFF"},
    {"[MainColor.checked]", "#1460AB"},  {"[ToolBarBgColor]", "#F5F5F5"},
    {"[MainToolHoverColor]", "#EAEAEA"}, {"[MainToolPressColor]", "#B7B7B7"},
    {"[MainToolCheckColor]", "#D3D3D3"}};
const SkinMap lumDefaults{{"[MainColor]", "#008AD9"},
                          {"[LightColor]", "#FFFFFF"},
                          {"[MainColor.checked]", "#1368AD"},
                          {"[ToolBarBgColor]", "#F4F4F4"},
                          {"[Color.checked]", "rgb(195,198,202)"},
                          {"[MainColor.hover]", "rgb(219,222,227)"},
                          {"[MainColor.pressed]", "rgb(183,185,190)"}};

/** The map with other values for some of its keys; a null value takes the key away. */
SkinMap with(SkinMap map, const SkinMap &changes)
{
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value().isNull())
            map.remove(change.key());
        else
            map.insert(change.key(), change.value());
    }
    return map;
}

QString shippedTemplate(int skin)
{
    return LoadQss(
        QString(":/mr_toolbar/Resources/%1/qssfile.qss").arg(skin == lum ? "lum" : "marodi"));
}

const SkinMap hoverIsPressed{{"[MainColor.hover]", "rgb(183,185,190)"},
                             {"[MainColor.pressed]", QString()}};

/** Skin maps, and how the colours after construction differ from those after a switch. */
const struct
{
    const char *name;
    int skin;
    SkinMap given, deviation;
} skins[]{
    {"lum", lum, {}, {}},
    {"any other", -1, {}, {}},
    {"any other, some", -1, {{"[DefaultFontSize]", "[LightColor]"}}, {}},
    {"lum, hover", lum, {{"[MainColor.hover]", "blue"}}, hoverIsPressed},
    // The sheets do not use [LightColor], so a value refers to it.
    {"lum, pressed",
     lum,
     {{"[MainColor.pressed]", "red"}, {"[Color.checked]", "[LightColor]"}},
     {}},
    {"left to the host", marodi, {{external, ""}}, {}},
};

} // namespace

/** From a skin map to the style sheet of the toolbar. */
class SkinTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNotReadTheByteOrderMarkOfATemplateAsText()
    {
        for (const int skin : {marodi, lum})
            QVERIFY(!shippedTemplate(skin).startsWith(QChar(QChar::ByteOrderMark)));
    }

    void shouldFillPlaceholdersInTheOrderOfTheKeys()
    {
        const QString sizes = "[DefaultFontSize] [MenuItemHeight] [MenuItemPaddingLeft]";
        const QList<std::tuple<const char *, SkinMap, bool, QString, QString>> rows{
            {"every occurrence", SkinMap{{"[A]", "x"}}, false, "[A][A]", "xx"},
            {"by a later key", SkinMap{{"[A]", "[B]"}, {"[B]", "x"}}, false, "[A]", "x"},
            {"not by an earlier key", SkinMap{{"[A]", "x"}, {"[B]", "[A]"}}, false, "[B]", "[A]"},
            {"by a size", SkinMap{{"[A]", "[DefaultFontSize]"}}, false, "[A]", "12"},
            {"any text is a key", SkinMap{{"QMenu", "X"}}, false, "QMenu{}", "X{}"},
            {"no pattern", SkinMap{{"[a].", "x"}}, false, "[A]. a", "[A]. a"},
            {"sizes", SkinMap{}, false, sizes, "12 4 4"},
            {"sizes, compact", SkinMap{}, true, sizes, "12 3.5 4"}};
        for (const auto &[name, map, isCompact, sheet, filled] : rows)
            QVERIFY2(StyleSheet::filled(sheet, map, isCompact) == filled, name);
    }

    void shouldScaleEveryLengthInPixels()
    {
        const QList<std::tuple<const char *, const char *, float, const char *>> rows{
            {"nothing to do", "width:7px 007px", 1.0F, "width:7px 007px"},
            {"half is rounded up, less down", "38px 1px 33px", 1.25F, "48px 1px 41px"},
            {"smaller", "10px 0px", 0.5F, "5px 0px"},
            {"capitals, comments", "/* 3PX */4Px", 2.0F, "/* 6PX */8Px"},
            {"signs and points stay", "-5px 1.5px", 2.0F, "-10px 1.10px"},
            {"other units", "2em 50% #123456 12 px", 2.0F, "2em 50% #123456 12 px"},
            {"no blank between", "1px2px", 2.0F, "2px4px"}};
        for (const auto &[name, sheet, factor, scaled] : rows)
            QVERIFY2(NewToolBar::ScaleSheet(sheet, factor) == QLatin1String(scaled), name);
    }

    void shouldApplyTheSheetOfItsSkin_data() { addRows(skins); }

    void shouldApplyTheSheetOfItsSkin()
    {
        const auto &[name, skin, given, deviation] = rowOf(skins);
        const SkinChoice choice(skin);
        const bool isExternal = given.contains(external);
        TestHost host("", given);
        const auto expected = [&](const SkinMap &map) {
            const QString rule =
                "QToolBar[intoolbar=\"true\"]{border:none;padding:0px 0px 0px 0px;}";
            const QString sheet = StyleSheet::filled(shippedTemplate(skin), map, skin == lum);
            const float scale = static_cast<float>(host.toolBar()->physicalDpiX()) / 96.0F;
            return isExternal ? sheet + rule : StyleSheet::scaled(sheet + ' ' + rule, scale);
        };
        const auto isApplied = [&](const QString &sheet) {
            const QString kept = host.facade().GetToolBarStyleSheet();
            return isExternal ? kept == sheet && host.sheet().isEmpty()
                              : host.sheet() == sheet && kept.isEmpty();
        };
        const SkinMap &defaults = skin == lum ? lumDefaults : marodiDefaults;
        QVERIFY(isApplied(expected(with(with(defaults, given), deviation))));

        // After construction the key externalqss has no special meaning.
        SkinMap colours = with(given, {{"[ToolBarBgColor]", "#ABCDEF"}});
        if (colours.remove(external) == 0)
            colours.insert(external, QString(""));
        host.facade().DoSetSkinStyleSlot(colours);
        const QString switched = expected(with(defaults, colours));
        QVERIFY(switched.contains("#ABCDEF") && isApplied(switched));
        host.facade().DoSetSkinStyleSlot({});
        QVERIFY(isApplied(switched));
    }

    void shouldLeaveEverythingInItsPlaceWhenColoursChange_data() { addSkins(); }

    void shouldLeaveEverythingInItsPlaceWhenColoursChange()
    {
        const SkinChoice choice;
        const SkinMap &colours = NewToolBar::uiStyle == lum ? lumDefaults : marodiDefaults;
        const auto host = TestHost::withRelease(colours);
        host->window().resize(host->scaled(700), host->scaled(300));
        host->show();
        host->enableEverything();
        const auto areas = host->toolBar()->findChildren<QScrollArea *>("scrollarea");
        QScrollBar *bar = areas.first()->horizontalScrollBar();
        bar->setValue(bar->maximum());
        QCoreApplication::processEvents();
        QVERIFY(bar->value() > host->scaled(50));
        const int place = bar->value();
        const QImage before = host->window().grab().toImage();
        host->facade().DoSetSkinStyleSlot(with(colours, {{"[ToolBarBgColor]", "#223344"}}));
        QCOMPARE(bar->value(), place);
        QTRY_VERIFY(host->window().grab().toImage() != before);
        host->facade().DoSetSkinStyleSlot(colours);
        QTRY_VERIFY(host->window().grab().toImage() == before);
        QCOMPARE(bar->value(), place);
    }

    void shouldFindTheIconsOfItsOwnSkinOnly()
    {
        const QList<std::tuple<int, QString, QString>> rows{
            {marodi, "icon16/Print.svg", "marodi/icons/icon16/Print.svg"},
            {lum, "/icon16/Print.svg", "lum/icons//icon16/Print.svg"},
            {marodi, "h_software.svg", "marodi/icons/h_software.svg"},
            {lum, "h_software.svg", ""}, // An icon of the other skin.
            {marodi, "Print.svg", ""},   // The directory of the size is missing.
            {marodi, "", ""}};
        for (const auto &[skin, name, path] : rows) {
            const SkinChoice choice(skin);
            QCOMPARE(TestHost("").toolBar()->GetIconPath(name),
                     path.isEmpty() ? path : ":/mr_toolbar/Resources/" + path);
        }
    }

    void shouldShowTheButtonOfTheFinderLikeThePreferences()
    {
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            const TestHost plain(Describe::section("addtional", "<button name='e_preference'/>"));
            const TestHost host(Describe::section("addtional", "<button name='e_preference'/>"
                                                               "<button name='t_findcommand'/>"));
            QString sheet = host.sheet();
            QVERIFY(sheet.contains("QPushButton#t_findcommand,QPushButton#e_preference,"));
            static const QRegularExpression added("QPushButton#t_findcommand[:\\w-]*,");
            QCOMPARE(sheet.remove(added), plain.sheet());
        }
    }

    void shouldCauseNoWarnings()
    {
        for (const auto &[skin, map] : {std::pair{marodi, SkinMap()},
                                        {lum, SkinMap()},
                                        {lum, SkinMap{{"[MainColor]", "red"}}}}) {
            const SkinChoice choice(skin);
            const WarningTrap trap;
            const auto host = TestHost::withRelease(map);
            host->show();
            host->toolBar()->Inner_DoDelayLoadMenuSlot();
            host->openEachTab([](const QString &) { QCoreApplication::processEvents(); });
            const QRegularExpression aboutSheets("style ?sheet|Unknown property|Could not parse",
                                                 QRegularExpression::CaseInsensitiveOption);
            QCOMPARE(WarningTrap::warnings().filter(aboutSheets), QStringList());
        }
    }
};

QTEST_MAIN(SkinTest)
#include "tst_skin.moc"
