// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "GuideBlocks.h"
#include "SkinMaps.h"

#include "examples/reader/panels/SkinMaps.h"
#include "tests/support/Elements.h"
#include "tests/support/TestHost.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/skin/StyleSheet.h"

#include <QColor>
#include <QFileInfo>
#include <QMetaMethod>
#include <QRegularExpression>

#include <cmath>

Q_DECLARE_METATYPE(GuideBlock)

namespace {

const QStringList guideNames{"host-guide.md", "description-format.md", "skins.md"};

QString guidesFolder()
{
    return qEnvironmentVariable("GUIDES") + '/';
}

QString contentOf(const QString &name)
{
    QFile file(guidesFolder() + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The anchors that the headings of a Markdown page get. */
QStringList anchorsOf(const QString &name)
{
    static const QRegularExpression heading("\n#+ ([^\n]+)");
    static const QRegularExpression dropped("[^a-z0-9_ -]");
    QStringList anchors;
    for (auto headings = heading.globalMatch('\n' + contentOf(name)); headings.hasNext();) {
        QString anchor = headings.next().captured(1).toLower();
        anchors.append(anchor.remove(dropped).replace(' ', '-'));
    }
    return anchors;
}

/** All fields of a record that are read from attributes. */
QVariantList valuesOf(const Controller &record)
{
    return {record.text,     record.name,       record.icon,       record.arrow,
            record.layout,   record.output,     record.tooltip,    record.disabletip,
            record.group,    record.shortcut,   record.dropicon,   record.index,
            record.check,    record.checkable,  record.checked,    record.usable,
            record.visible,  record.available,  record.editable,   record.switchable,
            record.scalable, record.withaction, record.doubleclick};
}

/** Whether the parser stores an attribute: then one of these values changes a field's default. */
bool isKnownAttribute(const QString &name)
{
    QDomDocument document;
    QDomElement element = document.createElement("button");
    for (const char *value : {"true", "false", "7"}) {
        element.setAttribute(name, value);
        Controller record;
        GetElementAttributes(&element, &record);
        if (valuesOf(record) != valuesOf(Controller()))
            return true;
    }
    return false;
}

QStringList unknownAttributes(const QDomElement &description)
{
    QStringList unknown;
    const QList<QDomElement> elements = elementsBelow(description);
    for (const QDomElement &element : elements) {
        const QDomNamedNodeMap attributes = element.attributes();
        for (int i = 0; i < attributes.count(); ++i) {
            const QString name = attributes.item(i).nodeName();
            if (!isKnownAttribute(name))
                unknown.append(element.tagName() + ' ' + name);
        }
    }
    return unknown;
}

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/** The fixed colours of texts and icons, and the skin map's keys of their backgrounds. */
struct FixedColours
{
    int skin;
    QStringList topLine; ///< Keys of the backgrounds of white text and icons.
    QStringList row;     ///< Keys of the backgrounds of dark text.
    QStringList rest;    ///< Those of them that show icons for longer than a press.
    QString text;
    QStringList icons;
};

const FixedColours marodiColours{
    marodi,
    {"[MainColor]", "[MainColor.checked]"},
    {"[ToolBarBgColor]", "[MainToolHoverColor]", "[MainToolCheckColor]", "[MainToolPressColor]"},
    {"[ToolBarBgColor]", "[MainToolHoverColor]", "[MainToolCheckColor]"},
    "#333333",
    {"#454545", "#0078c8"}};
const FixedColours lumColours{
    lum,
    {"[MainColor.checked]"},
    {"[ToolBarBgColor]", "[MainColor.hover]", "[Color.checked]", "[MainColor.pressed]"},
    {"[ToolBarBgColor]", "[MainColor.hover]", "[Color.checked]"},
    "#000000",
    {"#333333", "#1368ad"}};

} // namespace

/** Whether the guides agree with the library. Their code is compiled by the target guide_blocks. */
class GuidesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(!guideBlocks(qEnvironmentVariable("GUIDE_BLOCKS")).isEmpty(), "no descriptions");
    }

    void shouldDescribeWorkingToolbars_data()
    {
        QTest::addColumn<GuideBlock>("block");
        const QList<GuideBlock> blocks = guideBlocks(qEnvironmentVariable("GUIDE_BLOCKS"));
        for (const GuideBlock &block : blocks)
            QTest::newRow(qPrintable(block.name)) << block;
    }

    void shouldDescribeWorkingToolbars()
    {
        QFETCH(GuideBlock, block);
        QVERIFY2(block.error.isEmpty(), qPrintable(block.error));
        QDomElement root = block.description.documentElement();
        QCOMPARE(unknownAttributes(root), QStringList());

        QList<Controller *> records;
        for (QDomElement section = root.firstChildElement(); !section.isNull();
             section = section.nextSiblingElement()) {
            const auto before = records.size();
            ParseXMLElement(&section, &records);
            QVERIFY2(records.size() > before, "A section is unknown or empty");
        }
        DeleteUnitControl(&records);

        QMainWindow window;
        MRToolBar toolBar(&window, root, {}, ToolBarLeft);
        window.show();
        window.findChild<NewToolBar *>()->Inner_DoDelayLoadMenuSlot();
        const QStringList names = controlNames(root);
        for (const QString &name : names)
            QVERIFY2(window.findChild<QObject *>(name), qPrintable("There is no control " + name));
    }

    void shouldKnowEveryAttributeInItsTable()
    {
        // | `attribute` | text | ...
        static const QRegularExpression row("\n\\| `([a-z_]+)` \\| (?:text|number|yes/no) \\|");
        QStringList documented;
        for (auto rows = row.globalMatch(contentOf("description-format.md")); rows.hasNext();)
            documented.append(rows.next().captured(1));
        QCOMPARE(documented.size(), 24);
        for (const QString &name : std::as_const(documented))
            QVERIFY2(isKnownAttribute(name), qPrintable(name));
    }

    void shouldNameEverySignalAndSlot()
    {
        const QString guide = contentOf("host-guide.md");
        const QMetaObject &facade = MRToolBar::staticMetaObject;
        for (int i = facade.methodOffset(); i < facade.methodCount(); ++i) {
            const QByteArray name = facade.method(i).name();
            if (!name.startsWith("Inner_"))
                QVERIFY2(guide.contains('`' + name + '('), name);
        }
    }

    void shouldGiveTheDefaultsOfTheSkins()
    {
        // | `[Key]` | what it colours | `marodi` | `lum` |
        static const QRegularExpression row(
            "\n\\| `(\\[[^`]+\\])` \\| [^|]+ \\| (?:`([^`]+)`|none) \\| (?:`([^`]+)`|none) \\|");
        ToolBarSkinStyle documented[2];
        for (auto rows = row.globalMatch(contentOf("skins.md")); rows.hasNext();) {
            const QRegularExpressionMatch match = rows.next();
            for (const int skin : {marodi, lum}) {
                if (!match.captured(2 + skin).isEmpty())
                    documented[skin].insert(match.captured(1), match.captured(2 + skin));
            }
        }
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            QCOMPARE(documented[skin], Skin::initialMap({}));
        }
    }

    void shouldOfferReadableSkins_data()
    {
        QTest::addColumn<ToolBarSkinStyle>("map");
        QTest::addColumn<int>("skin");
        QTest::newRow("dark, marodi") << darkMarodi << marodi;
        QTest::newRow("dark, lum") << darkLum << lum;
        QTest::newRow("green, marodi") << greenMarodi << marodi;
        QTest::newRow("green, lum") << greenLum << lum;
    }

    void shouldOfferReadableSkins()
    {
        QFETCH(ToolBarSkinStyle, map);
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        const FixedColours &fixed = skin == lum ? lumColours : marodiColours;
        // The map has every key that the sheet uses, and no other one.
        const QString sheet = LoadQss(Skin::resourceDirectory() + "qssfile.qss");
        const ToolBarSkinStyle whole = Skin::initialMap(map);
        for (auto entry = whole.cbegin(); entry != whole.cend(); ++entry)
            QVERIFY2(map.contains(entry.key()) == sheet.contains(entry.key()),
                     qPrintable(entry.key()));

        const auto isReadable = [&map](const QStringList &grounds, const QString &ink,
                                       double least) {
            for (const QString &ground : grounds) {
                if (contrast(map.value(ground), ink) < least) {
                    qWarning() << ink << "on" << ground << contrast(map.value(ground), ink);
                    return false;
                }
            }
            return true;
        };
        QVERIFY(isReadable(fixed.topLine, "#ffffff", 4.5));
        QVERIFY(isReadable(fixed.row, fixed.text, 4.5));
        for (const QString &icon : fixed.icons)
            QVERIFY(isReadable(fixed.rest, icon, 3.0));
    }

    void shouldOfferTheSkinsOfTheReader()
    {
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            QCOMPARE(SkinMaps::dark(), skin == lum ? darkLum : darkMarodi);
            QCOMPARE(SkinMaps::green(), skin == lum ? greenLum : greenMarodi);
        }
    }

    void shouldRelyOnTheColoursOfTheSheets()
    {
        // shouldOfferReadableSkins() relies on these colours of the sheets and icons.
        for (const FixedColours &fixed : {marodiColours, lumColours}) {
            const SkinChoice choice(fixed.skin);
            const QString sheet = LoadQss(Skin::resourceDirectory() + "qssfile.qss");
            QVERIFY(sheet.contains("color: " + fixed.text));
            QFile icon(Skin::resourceDirectory() + "icons/icon24/ZoomIn.svg");
            QVERIFY(icon.open(QIODevice::ReadOnly));
            const QByteArray svg = icon.readAll();
            for (const QString &colour : fixed.icons)
                QVERIFY2(svg.contains(colour.toLatin1()), qPrintable(colour));
        }
    }

    void shouldLinkToWhatThereIs()
    {
        static const QRegularExpression link("\\]\\(([A-Za-z0-9_./-]*)(?:#([a-z0-9_-]+))?\\)");
        for (const QString &name : guideNames) {
            const QString guide = contentOf(name);
            QVERIFY2(!guide.isEmpty(), qPrintable(name));
            for (auto links = link.globalMatch(guide); links.hasNext();) {
                const QRegularExpressionMatch match = links.next();
                const QString target = match.captured(1).isEmpty() ? name : match.captured(1);
                const QString anchor = match.captured(2);
                QVERIFY2(QFileInfo::exists(guidesFolder() + target),
                         qPrintable(name + " links to " + target));
                QVERIFY2(anchor.isEmpty() || anchorsOf(target).contains(anchor),
                         qPrintable(name + " links to " + target + '#' + anchor));
            }
        }
    }
};

QTEST_MAIN(GuidesTest)
#include "tst_guides.moc"
