// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "GuideBlocks.h"
#include "SkinMaps.h"

#include "examples/reader/panels/SkinMaps.h"
#include "tests/support/Elements.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/skin/StyleSheet.h"

#include <QColor>
#include <QFileInfo>
#include <QMetaMethod>
#include <QRegularExpression>

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
    return {record.text,
            record.name,
            record.icon,
            record.arrow,
            record.layout,
            record.output,
            record.tooltip,
            record.disabletip,
            record.group,
            record.shortcut,
            record.dropicon,
            record.index,
            record.check,
            record.checkable,
            record.checked,
            record.usable,
            record.visible,
            record.available,
            record.editable,
            record.switchable,
            record.scalable,
            record.withaction,
            record.doubleclick,
            record.optIn().keywords,
            record.optIn().keytip,
            record.optIn().shortcutscope,
            record.optIn().context,
            record.optIn().contextcolour,
            record.optIn().shrink,
            record.optIn().peek,
            record.optIn().quickadd};
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

/** The fixed colours of texts and icons, and the skin map's keys of their backgrounds. */
struct FixedColours
{
    int skin;
    QStringList topLine; ///< Keys of the backgrounds of white text and icons.
    QStringList row;     ///< Keys of the backgrounds of dark text; the last one is for a press.
    QString text;
    QStringList icons;
};

const FixedColours marodiColours{
    marodi,
    {"[MainColor]", "[MainColor.checked]"},
    {"[ToolBarBgColor]", "[MainToolHoverColor]", "[MainToolCheckColor]", "[MainToolPressColor]"},
    "#333333",
    {"#454545", "#0078c8"}};
const FixedColours lumColours{
    lum,
    {"[MainColor.checked]"},
    {"[ToolBarBgColor]", "[MainColor.hover]", "[Color.checked]", "[MainColor.pressed]"},
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
        QCOMPARE(documented.size(), 29);
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

    void shouldOfferReadableSkinsThatTheReaderHasToo_data() { addSkins(); }

    void shouldOfferReadableSkinsThatTheReaderHasToo()
    {
        QFETCH(int, skin);
        const SkinChoice choice(skin);
        const ToolBarSkinStyle dark = skin == lum ? darkLum : darkMarodi;
        const ToolBarSkinStyle green = skin == lum ? greenLum : greenMarodi;
        QVERIFY(SkinMaps::dark() == dark && SkinMaps::green() == green);
        const FixedColours &fixed = skin == lum ? lumColours : marodiColours;
        const QString sheet = LoadQss(Skin::resourceDirectory() + "qssfile.qss");
        QVERIFY(sheet.contains("color: " + fixed.text));
        const auto drawing =
            TestDocuments::content(Skin::resourceDirectory() + "icons/icon24/ZoomIn.svg");
        for (const QString &icon : fixed.icons)
            QVERIFY2(drawing.contains(icon.toLatin1()), qPrintable(icon));
        for (const ToolBarSkinStyle &map : {dark, green}) {
            // The map has every key that the sheet uses, and no other one.
            const ToolBarSkinStyle whole = Skin::initialMap(map);
            for (auto entry = whole.cbegin(); entry != whole.cend(); ++entry)
                QVERIFY2(map.contains(entry.key()) == sheet.contains(entry.key()),
                         qPrintable(entry.key()));
            for (const QString &ground : fixed.topLine)
                QVERIFY2(Contrast::ratio(Qt::white, map.value(ground)) >= 4.5, qPrintable(ground));
            for (const QString &ground : fixed.row)
                QVERIFY2(Contrast::ratio(fixed.text, map.value(ground)) >= 4.5, qPrintable(ground));
            // A press shows icons for a moment only.
            for (const QString &ground : fixed.row.mid(0, 3)) {
                for (const QString &icon : fixed.icons)
                    QVERIFY2(Contrast::ratio(icon, map.value(ground)) >= 3.0, qPrintable(ground));
            }
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
