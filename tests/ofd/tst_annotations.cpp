// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include "document/MarkAnnotation.h"
#include "document/PageLinks.h"
#include "ofd/Annotations.h"
#include "ofd/Archive.h"
#include "ofd/DocumentRoot.h"
#include "ofd/Fault.h"
#include "ofd/Permissions.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>

namespace {

using DocumentPointer = std::shared_ptr<const Ofd::Document>;

/** The entries of an archive in their order: names, checksums and what is packed. */
QVector<QPair<QString, QByteArray>> entriesOf(QByteArray archive)
{
    QBuffer buffer(&archive);
    QuaZip zip(&buffer);
    zip.open(QuaZip::mdUnzip);
    QVector<QPair<QString, QByteArray>> entries;
    for (bool more = zip.goToFirstFile(); more; more = zip.goToNextFile()) {
        QuaZipFileInfo64 info;
        zip.getCurrentFileInfo(&info);
        QuaZipFile file(&zip);
        int method = 0;
        int level = 0;
        file.open(QIODevice::ReadOnly, &method, &level, true);
        entries.append({QStringLiteral("%1 %2 %3 %4")
                            .arg(info.name, info.dateTime.toString(Qt::ISODate))
                            .arg(info.crc)
                            .arg(method),
                        file.readAll()});
    }
    return entries;
}

/** A document without annotations. */
DocumentPointer plain()
{
    QString error;
    return Ofd::read(QStringLiteral(OFD_SAMPLES "/text.ofd"), &error);
}

DocumentPointer reread(const QByteArray &archive)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("written.ofd"));
    if (!file.open(QIODevice::WriteOnly) || file.write(archive) != archive.size())
        return nullptr;
    file.close();
    QString error;
    auto document = Ofd::read(file.fileName(), &error);
    if (!document)
        qWarning("%s", qUtf8Printable(error));
    return document;
}

Ofd::AnnotationDraft draftOf(const Mark &mark, const Ofd::Document &document)
{
    Ofd::AnnotationDraft draft = MarkAnnotation::draftOf(mark);
    Ofd::DrawnPath drawn;
    drawn.path.addRect(mark.rect());
    drawn.fill = mark.colour;
    drawn.pen = QPen(Qt::black, 2, Qt::DashLine, Qt::RoundCap);
    MarkAnnotation::setAppearance(draft, {drawn}, document.area(0).topLeft());
    return draft;
}

Mark markOf(int kind)
{
    Mark mark;
    mark.kind = MarkKind(kind);
    mark.points << QPointF(10, 20.125) << QPointF(1 / 3.0, 88) << QPointF(30, 40.1);
    mark.text = QStringLiteral(" 第一行\n<&> 𠮷 ");
    mark.colour = QColor(1, 2, 3, 77);
    mark.width = 1.2 * 96 / 25.4;
    mark.creator = QStringLiteral("张三");
    mark.date = QDate(2024, 2, 29);
    return mark;
}

QMap<int, QVector<Ofd::Annotation>> headsOf(const std::shared_ptr<const Ofd::Document> &document)
{
    return Ofd::Annotations::heads(*document, Ofd::DocumentRoot(*document));
}

QList<Mark> marksOf(const std::shared_ptr<const Ofd::Document> &document)
{
    return MarkAnnotation::marksOf(*document, Ofd::DocumentRoot(*document));
}

} // namespace

/** Annotations are written into a copy of the file and read again. */
class TestAnnotations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadEveryKindOfMarkAgain()
    {
        const auto document = plain();
        for (int kind = 0; kind < int(MarkKind::Annotation); ++kind) {
            Mark mark = markOf(kind);
            const bool isOnAll = mark.kind == MarkKind::Watermark;
            mark.page = isOnAll ? everyPage : 0;
            const Ofd::AnnotationDraft draft = draftOf(mark, *document);
            QMap<int, Ofd::AnnotationChanges> changes;
            for (int page = 0; page < (isOnAll ? document->pageCount() : 1); ++page)
                changes[page].added.append(draft);
            const auto again = reread(Ofd::withChanges(*document, changes));
            QVERIFY(again);
            const QList<Mark> marks = marksOf(again);
            QCOMPARE(marks.size(), 1);
            QCOMPARE(int(marks.first().kind), kind);
            QCOMPARE(marks.first().page, mark.page);
            QVERIFY(marks.first().points == mark.points);
            QCOMPARE(marks.first().text, mark.text);
            QCOMPARE(marks.first().colour, mark.colour);
            QVERIFY(marks.first().width == mark.width);
            QCOMPARE(marks.first().creator, mark.creator);
            QCOMPARE(marks.first().date, mark.date);
        }
    }

    void shouldKeepAllOtherEntriesAndAnnotations()
    {
        const auto document = OfdFiles::opened("acts");
        QMap<int, Ofd::AnnotationChanges> changes;
        changes[0].remarks.insert(1, QStringLiteral("新\n<备注>"));
        changes[0].date = QStringLiteral("2026-01-02");
        changes[1].added.append(draftOf(markOf(0), *document));
        const QByteArray written = Ofd::withChanges(*document, changes);
        const auto before = entriesOf(document->package->archive());
        const auto after = entriesOf(written);
        QCOMPARE(after.size(), before.size() + 1);
        QStringList changed;
        for (int i = 0; i < before.size(); ++i) {
            if (before.at(i) != after.at(i))
                changed.append(before.at(i).first.section(' ', 0, 0));
        }
        QCOMPARE(changed, QStringList({"Doc_0/Document.xml", "Doc_0/Annots/Annotations.xml",
                                       "Doc_0/Annots/Page_0.xml"}));

        const auto again = reread(written);
        QVERIFY(again);
        const auto heads = headsOf(again);
        QCOMPARE(heads.value(0).at(1).remark, QStringLiteral("新\n<备注>"));
        QCOMPARE(heads.value(0).at(1).date, QStringLiteral("2026-01-02"));
        QCOMPARE(heads.value(0).at(1).creator, QStringLiteral("乙"));
        const QString list = again->package->read("Doc_0/Annots/Page_0.xml");
        QVERIFY(list.contains("<!-- Kept. -->") && list.contains("xmlns:other=\"urn:other\"")
                && list.contains("other:kept=\"a&quot;b\""));
        QCOMPARE(OfdFiles::painted(again), OfdFiles::painted(document));
    }

    void shouldGiveNewIdentifiersAboveAllOthers()
    {
        const auto document = OfdFiles::opened("acts");
        QMap<int, Ofd::AnnotationChanges> changes;
        changes[0].removed = {0};
        changes[0].added = {draftOf(markOf(0), *document), draftOf(markOf(7), *document)};
        const auto again = reread(Ofd::withChanges(*document, changes));
        const auto heads = headsOf(again).value(0);
        QCOMPARE(heads.size(), 3);
        QCOMPARE(heads.at(0).id, QStringLiteral("922"));
        QCOMPARE(heads.at(1).id, QStringLiteral("924")); // The file uses 923, but declares 900.
        QCOMPARE(heads.at(2).id, QStringLiteral("926"));
        const Ofd::DocumentRoot root(*again);
        QCOMPARE(root.element.child("CommonData")->childText("MaxUnitID"), QStringLiteral("927"));
        const QPoint inside = QPoint(10, 20) * 0.2646 * OfdFiles::pixelsPerMillimetre;
        QVERIFY(OfdFiles::painted(again).pixelColor(inside + QPoint(10, 12)) != QColor(Qt::white));
    }

    void shouldTakeForAMarkOnlyWhatIsOne_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("unchanged") << QByteArray() << QByteArray();
        QTest::newRow("moved") << QByteArray("<ofd:Appearance Boundary=\"")
                               << QByteArray("<ofd:Appearance Boundary=\"1");
        QTest::newRow("colour") << QByteArray("#4d010203") << QByteArray("colour");
        QTest::newRow("width") << QByteArray("MarkWidth\">") << QByteArray("MarkWidth\">-");
        QTest::newRow("far") << QByteArray("MarkPoints\">") << QByteArray("MarkPoints\">1e300 ");
        QTest::newRow("no points") << QByteArray("MarkPoints") << QByteArray("Points");
        QTest::newRow("kind") << QByteArray("Subtype=\"") << QByteArray("Subtype=\"x");
    }

    void shouldTakeForAMarkOnlyWhatIsOne()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const auto document = plain();
        QMap<int, Ofd::AnnotationChanges> changes;
        changes[0].added.append(draftOf(markOf(0), *document));
        const auto written = reread(Ofd::withChanges(*document, changes));
        const QString list = QStringLiteral("Doc_0/Annots/Page_0/Annotation.xml");
        QByteArray bytes = written->package->read(list);
        QVERIFY(from.isEmpty() || bytes.contains(from));
        bytes.replace(from, to);
        const QByteArray archive = Ofd::Archive::withEntries(*written->package, {{list, bytes}});
        const QList<Mark> marks = marksOf(reread(archive));
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.first().kind, from.isEmpty() ? MarkKind::Highlight : MarkKind::Annotation);
    }

    void shouldSurviveHostileLists_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const QString index = QStringLiteral("Doc_0/Annots/Annotations.xml");
        const QString list = QStringLiteral("Doc_0/Annots/Page_0.xml");
        const QByteArray end = "</ofd:PageAnnot>";
        QTest::newRow("cut") << list << end << QByteArray();
        QTest::newRow("DTD") << list << QByteArray("<ofd:PageAnnot")
                             << QByteArray("<!DOCTYPE a [<!ENTITY b \"c\">]><ofd:PageAnnot");
        QTest::newRow("empty") << list << end << "<ofd:Annot/>" + end;
        QTest::newRow("same") << list << QByteArray("ID=\"922\"") << QByteArray("ID=\"920\"");
        QTest::newRow("high") << list << QByteArray("ID=\"922\"")
                              << QByteArray("ID=\"9223372036854775807\"");
        QTest::newRow("nested") << list << end << "<ofd:Annot><ofd:Annot/></ofd:Annot>" + end;
        QTest::newRow("box") << list << QByteArray("15 25 20 10") << QByteArray("nan inf 1 1");
        QTest::newRow("outside") << index << QByteArray(">Page_0.xml")
                                 << QByteArray(">../../../Page_0.xml");
        QTest::newRow("missing") << index << QByteArray(">Page_0.xml") << QByteArray(">None.xml");
        QTest::newRow("no page") << index << QByteArray("\"1\"") << QByteArray("\"77\"");
        QTest::newRow("shared") << index << QByteArray("</ofd:Annotations>")
                                << QByteArray("<ofd:Page PageID=\"2\"><ofd:FileLoc>Page_0.xml"
                                              "</ofd:FileLoc></ofd:Page></ofd:Annotations>");
        QTest::newRow("itself") << index << QByteArray(">Page_0.xml")
                                << QByteArray(">Annotations.xml");
    }

    /** They are read or refused; what is added to those that are read is there afterwards. */
    void shouldSurviveHostileLists()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const auto good = OfdFiles::opened("acts");
        QByteArray bytes = good->package->read(path);
        QVERIFY(bytes.contains(from));
        bytes.replace(from, to);
        const auto document = reread(Ofd::Archive::withEntries(*good->package, {{path, bytes}}));
        if (!document)
            return;
        QMap<int, Ofd::AnnotationChanges> changes;
        changes[0].added.append(draftOf(markOf(0), *document));
        try {
            const auto again = reread(Ofd::withChanges(*document, changes));
            QVERIFY(again);
            const int before = int(headsOf(document).value(0).size());
            QCOMPARE(headsOf(again).value(0).size(), before + 1);
        } catch (const Ofd::Fault &fault) {
            QVERIFY(!fault.message.isEmpty());
        }
    }

    void shouldFindWhereLinksLead()
    {
        const auto document = OfdFiles::opened("acts");
        const PageLinks links(*document, Ofd::DocumentRoot(*document));
        const auto first = links.on(*document->page(0), {});
        QCOMPARE(first.size(), 2);
        QCOMPARE(first.at(0).place.page, 1);
        QCOMPARE(*first.at(0).place.percent, 200.0);
        QCOMPARE(first.at(0).area.topLeft() * MarkAnnotation::millimetres, QPointF(35, 5));
        QCOMPARE(first.at(1).address, QStringLiteral("https://example.org/a?b=c&d"));
        QCOMPARE(first.at(1).area.size() * MarkAnnotation::millimetres, QSizeF(20, 10));
        QCOMPARE(links.on(*document->page(0), {0}).size(), 1);
        const auto second = links.on(*document->page(1), {});
        QCOMPARE(second.at(0).place.page, 0);
        QCOMPARE(second.at(1).attachment, 0);
    }

    void shouldFindLinksOfTemplatesCompositesAndBlocks()
    {
        const auto document = OfdFiles::opened("links");
        const auto page = document->page(0);
        QStringList found;
        for (const Ofd::Link &link : page->links + page->annotations.at(0).links) {
            const QRectF area = link.area;
            found.append(QStringLiteral("%1 %2 %3 %4 %5")
                             .arg(link.target)
                             .arg(area.x())
                             .arg(area.y())
                             .arg(area.width())
                             .arg(area.height()));
        }
        QCOMPARE(found, QStringList({"template 2 2 10 10", "unit 22 4 8 16", "unit 46 3 8 4",
                                     "unit 46 15 3 8", "unit 25 30 4 8", "block 2 25 10 10",
                                     "unit 51 15 4 8"}));
    }

    void shouldReadPermissions_data()
    {
        QTest::addColumn<QByteArray>("inside");
        QTest::addColumn<QString>("denied");
        QTest::newRow("none") << QByteArray() << QString();
        QTest::newRow("all") << QByteArray("<Edit>true</Edit><Print Printable=\"true\"/>")
                             << QString();
        QTest::newRow("false") << QByteArray("<Edit>false</Edit><Annot>0</Annot><Export> false "
                                             "</Export><Signature>false</Signature>"
                                             "<Watermark>false</Watermark>"
                                             "<Print Printable=\"false\"/>")
                               << QStringLiteral("edit annot export sign watermark print");
        QTest::newRow("no copies")
            << QByteArray("<Print Printable=\"true\" Copies=\"0\"/>") << QStringLiteral("print");
        QTest::newRow("over") << QByteArray("<ValidPeriod EndDate=\"2020-01-01\"/>")
                              << QStringLiteral("period");
        QTest::newRow("early") << QByteArray("<ValidPeriod StartDate=\"2999-01-01T00:00:00\"/>")
                               << QStringLiteral("period");
        QTest::newRow("last day") << "<ValidPeriod EndDate=\""
                                         + QDate::currentDate().toString(Qt::ISODate).toLatin1()
                                         + "\"/>"
                                  << QString();
    }

    void shouldReadPermissions()
    {
        QFETCH(QByteArray, inside);
        const QByteArray xml = "<Document><Permissions>" + inside + "</Permissions></Document>";
        const auto permissions =
            Ofd::Permissions::of(Ofd::XmlElement::parse(xml, QStringLiteral("test")));
        QStringList denied;
        const auto add = [&denied](bool isAllowed, const char *name) {
            if (!isAllowed)
                denied.append(name);
        };
        add(permissions.mayEdit, "edit");
        add(permissions.mayAnnotate, "annot");
        add(permissions.mayExport, "export");
        add(permissions.maySign, "sign");
        add(permissions.mayAddWatermark, "watermark");
        add(permissions.mayPrint, "print");
        add(permissions.isValidAt(QDateTime::currentDateTime()), "period");
        QTEST(denied.join(' '), "denied");
    }
};

QTEST_MAIN(TestAnnotations)
#include "tst_annotations.moc"
