// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Elements.h"
#include "tests/support/TestDocuments.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"

#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

/** The names and sections of records and of all their descendants. */
QStringList placesOf(const QList<Controller *> &records)
{
    QStringList places;
    for (const Controller *record : records) {
        places.append(record->name + ' ' + record->section);
        places += placesOf(record->children);
    }
    return places;
}

} // namespace

/** The reading of descriptions into records. */
class DescriptionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        DeleteUnitControl(&m_records);
        m_records.clear();
    }

    void shouldConvertAttributes()
    {
        for (const char *attribute : {"action", "name"})
            QCOMPARE(parsed("<button " + QByteArray(attribute) + "='f'/>").name, QString("f"));
        const Controller &tip = parsed("<button text='t' tooltip=''/>");
        QCOMPARE(tip.tooltip, QString("t"));
        const Controller &button = parsed("<button text='t' tooltip='p'/>");
        QCOMPARE(button.tooltip + button.prompt, QString("p"));
        const Controller &field = parsed("<lineedit tooltip='p'/>");
        QCOMPARE(field.tooltip + field.prompt, QString("pp"));
        QCOMPARE(parsed("<b index='-3'/>").index, -3);
        QCOMPARE(parsed("<b index='3rd'/>").index, 0);
        for (const QByteArray order : {"0", "10", "-1", "2nd", "\u0663", ""})
            QCOMPARE(parsed("<b shrink='" + order + "'/>").optIn().shrink, 0);
        QCOMPARE(parsed("<b shrink='9'/>").optIn().shrink, 9);
        const Controller &unknown = parsed("<b min_width='5' Name='x'/>");
        QCOMPARE(unknown.type + unknown.name, QString("b"));
    }

    void shouldTakeOneWordOnlyForEachFlag()
    {
        const auto areShown = [](const Controller &record) {
            return QList<bool>{record.visible, record.usable, record.available};
        };
        const QList<bool> all{true, true, true};
        QCOMPARE(areShown(parsed("<b name='f'/>")), all);
        QCOMPARE(areShown(parsed("<b visible='False' usable='0' available='FALSE'/>")), all);
        QCOMPARE(areShown(parsed("<b visible='false' usable='false' available='false'/>")),
                 QList<bool>({false, false, false}));
        const QByteArray flags = "<b checkable='%1' checked='%1' check='%1' editable='%1' "
                                 "switchable='%1' withaction='%1' scalable='%1' doubleclick='%1' "
                                 "peek='%1' quickadd='%1'/>";
        for (const QByteArray word : {"1", "True", "yes", "true"}) {
            const Controller &record = parsed(QByteArray(flags).replace("%1", word));
            const QList<bool> read{record.checkable,       record.checked,     record.check,
                                   record.editable,        record.switchable,  record.withaction,
                                   record.scalable,        record.doubleclick, record.optIn().peek,
                                   record.optIn().quickadd};
            QVERIFY2(read.count(word == "true") == read.size(), word.constData());
        }
    }

    void shouldKeepSectionAndOrderAtAnyDepth()
    {
        parse("<!-- c --><toolbar_addtional><a name='1'><!-- c --><b name='2'><c name='3'/></b>text"
              "<d name='4'/></a></toolbar_addtional><toolbar_appbutton><e "
              "name='5'/></toolbar_appbutton>");
        QCOMPARE(placesOf(m_records),
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
        QCOMPARE(m_records.at(0)->type, QString("sperator"));
        QVERIFY(m_records.at(1)->type.isEmpty() && m_records.at(2)->type.isEmpty());
        QCOMPARE(m_records.at(2)->children.size(), 1);
    }

    void shouldShipEverySectionAndDropIcon_data() { TestDocuments::addShipped(); }

    void shouldShipEverySectionAndDropIcon()
    {
        QFETCH(QString, path);
        const QByteArray text = TestDocuments::content(path);
        QVERIFY2(text.startsWith("\xEF\xBB\xBF<uiconfig"), "The byte-order mark is missing");
        const QDomElement root = TestDocuments::read(path).documentElement();
        QStringList sections;
        for (QDomElement section = root.firstChildElement(); !section.isNull();
             section = section.nextSiblingElement())
            sections.append(section.tagName());
        QCOMPARE(sections,
                 QStringList({"toolbar_appbutton", "toolbar_quickaccessbar", "toolbar_tabbar",
                              "toolbar_searchbar", "toolbar_addtional"}));
        // The description checker checks the other icons. No control shows these.
        const QString icons = path.section('/', 0, -2) + "/icons/";
        const QList<QDomElement> elements = elementsBelow(root);
        for (const QDomElement &element : elements) {
            const QString icon = element.attribute("dropicon");
            QVERIFY2(!icon.contains('/') || QFile::exists(icons + icon), qPrintable(icon));
        }
    }

    void shouldShipCompactDescriptionsThatDifferInWhiteSpaceOnly()
    {
        QString release = QString::fromUtf8(
            TestDocuments::content(TestDocuments::shippedPath("lum/mr_toolbar.release.xml")));
        QString debug = QString::fromUtf8(
            TestDocuments::content(TestDocuments::shippedPath("lum/mr_toolbar.debug.xml")));
        QVERIFY(release != debug);
        const QRegularExpression blanks(QString("\\s+"));
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
    /** The record of one element. */
    const Controller &parsed(const QByteArray &element)
    {
        parse("<toolbar_tabbar>" + element + "</toolbar_tabbar>");
        return *m_records.last();
    }

    QList<Controller *> m_records;
};

QTEST_GUILESS_MAIN(DescriptionTest)
#include "tst_description.moc"
