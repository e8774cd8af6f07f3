#include "tests/support/Elements.h"
#include "tests/support/TestDocuments.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"

#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <functional>

using Check = std::function<bool(const Controller &)>;
Q_DECLARE_METATYPE(Check)

namespace {

void forEach(const QList<Controller *> &records, const std::function<void(const Controller &)> &use)
{
    for (const Controller *record : records) {
        use(*record);
        forEach(record->children, use);
    }
}

} // namespace

/** Reads whole descriptions into records. */
class DescriptionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        DeleteUnitControl(&m_records);
        m_records.clear();
    }

    void shouldConvertAttributes_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<Check>("holds");
        const auto row = [](const char *name, const char *element, const Check &holds) {
            QTest::newRow(name) << QByteArray(element) << holds;
        };

        row("action is the name", "<button action='f'/>", [](auto &r) { return r.name == "f"; });
        row("name is the name", "<button name='f'/>", [](auto &r) { return r.name == "f"; });
        row("true by default", "<button name='f'/>",
            [](auto &r) { return r.usable && r.available && r.visible && !r.checked; });
        row("only false hides", "<button visible='False' usable='0' available='FALSE'/>",
            [](auto &r) { return r.visible && r.usable && r.available; });
        row("false hides", "<button visible='false' usable='false' available='false'/>",
            [](auto &r) { return !r.visible && !r.usable && !r.available; });
        row("only true checks", "<button checked='1' checkable='True' scalable='yes'/>",
            [](auto &r) { return !r.checked && !r.checkable && !r.scalable; });
        row("true sets each flag",
            "<b checkable='true' checked='true' check='true' editable='true' switchable='true' "
            "withaction='true' scalable='true' doubleclick='true'/>",
            [](auto &r) {
                return r.checkable && r.checked && r.check && r.editable && r.switchable
                       && r.withaction && r.scalable && r.doubleclick;
            });
        row("tooltip from text", "<button text='t' tooltip=''/>",
            [](auto &r) { return r.tooltip == "t"; });
        row("no prompt of a button", "<button text='t' tooltip='p'/>",
            [](auto &r) { return r.tooltip == "p" && r.prompt.isEmpty(); });
        row("prompt of a field", "<lineedit tooltip='p'/>",
            [](auto &r) { return r.tooltip == "p" && r.prompt == "p"; });
        row("index", "<b index='-3'/>", [](auto &r) { return r.index == -3; });
        row("bad index", "<b index='3rd'/>", [](auto &r) { return r.index == 0; });
        row("unknown attribute", "<b min_width='5' Name='x'/>",
            [](auto &r) { return r.type == "b" && r.name.isEmpty(); });
    }

    void shouldConvertAttributes()
    {
        QFETCH(QByteArray, element);
        QFETCH(Check, holds);
        parse("<toolbar_tabbar>" + element + "</toolbar_tabbar>");
        QCOMPARE(m_records.size(), 1);
        QVERIFY(holds(first()));
    }

    void shouldKeepSectionAndOrderAtAnyDepth()
    {
        parse("<!-- c --><toolbar_addtional><a name='1'><!-- c --><b name='2'><c name='3'/></b>text"
              "<d name='4'/></a></toolbar_addtional><toolbar_appbutton><e "
              "name='5'/></toolbar_appbutton>");
        QStringList names;
        forEach(m_records, [&names](const Controller &record) {
            names.append(record.name + QLatin1Char(' ') + record.section);
        });
        QCOMPARE(names,
                 QStringList({"1 toolbar_addtional", "2 toolbar_addtional", "3 toolbar_addtional",
                              "4 toolbar_addtional", "5 toolbar_appbutton"}));
    }

    void shouldIgnoreUnknownSectionsAndNullPointers()
    {
        parse("<toolbar_maintoolbar><a name='1'/></toolbar_maintoolbar><toolbar_whole/>"
              "<toolbar_tabbar/><Toolbar_tabbar><a name='1'/></Toolbar_tabbar>");
        QVERIFY(m_records.isEmpty());

        QDomElement element;
        ParseXMLElement(nullptr, &m_records);
        ParseXMLElement(&element, nullptr);
        ParseDomNode(nullptr, nullptr, QString());
        QVERIFY(!GetElementAttributes(nullptr, nullptr));
        m_records.append(nullptr);
        DeleteUnitControl(&m_records);
        m_records.clear();
    }

    void shouldKeepElementsWithoutAttributes()
    {
        parse("<toolbar_tabbar><sperator/><button/><extra><label "
              "text='x'/></extra></toolbar_tabbar>");
        QCOMPARE(m_records.size(), 3);
        QCOMPARE(m_records.at(0)->type, QStringLiteral("sperator"));
        QVERIFY(m_records.at(1)->type.isEmpty());
        QVERIFY(m_records.at(2)->type.isEmpty());
        QCOMPARE(m_records.at(2)->children.size(), 1);
    }

    void shippedDocumentsShouldBeWhole_data() { TestDocuments::addShipped(); }

    void shippedDocumentsShouldBeWhole()
    {
        QFETCH(QString, path);
        const QByteArray text = TestDocuments::content(path);
        QVERIFY2(text.startsWith("\xEF\xBB\xBF<uiconfig"), "The byte-order mark is gone");
        const QDomElement root = TestDocuments::read(path).documentElement();
        QStringList sections;
        for (QDomElement section = root.firstChildElement(); !section.isNull();
             section = section.nextSiblingElement())
            sections.append(section.tagName());
        QCOMPARE(sections,
                 QStringList({"toolbar_appbutton", "toolbar_quickaccessbar", "toolbar_tabbar",
                              "toolbar_searchbar", "toolbar_addtional"}));
        // The description check looks after the other icons; these nothing shows yet.
        const QString icons = path.section('/', 0, -2) + "/icons/";
        const QList<QDomElement> elements = elementsBelow(root);
        for (const QDomElement &element : elements) {
            const QString icon = element.attribute("dropicon");
            QVERIFY2(!icon.contains('/') || QFile::exists(icons + icon), qPrintable(icon));
        }
    }

    void compactDocumentsShouldDifferInWhiteSpaceOnly()
    {
        QString release = QString::fromUtf8(
            TestDocuments::content(TestDocuments::shippedPath("lum/mr_toolbar.release.xml")));
        QString debug = QString::fromUtf8(
            TestDocuments::content(TestDocuments::shippedPath("lum/mr_toolbar.debug.xml")));
        QVERIFY(release != debug);
        const QRegularExpression blanks(QStringLiteral("\\s+"));
        QCOMPARE(debug.remove(blanks), release.remove(blanks));
    }

private:
    void parse(const QByteArray &sections)
    {
        QDomDocument document;
        QVERIFY(document.setContent("<uiconfig prefix=''>" + sections + "</uiconfig>"));
        for (QDomElement section = document.documentElement().firstChildElement();
             !section.isNull(); section = section.nextSiblingElement())
            ParseXMLElement(&section, &m_records);
    }
    const Controller &first() const { return *m_records.first(); }

    QList<Controller *> m_records;
};

QTEST_GUILESS_MAIN(DescriptionTest)
#include "tst_description.moc"
