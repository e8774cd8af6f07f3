// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include "document/MarkAnnotation.h"
#include "ofd/Annotations.h"
#include "ofd/DocumentRoot.h"
#include "ofd/Fault.h"
#include "ofd/Permissions.h"

#include <QBuffer>
#include <QTest>

#include <quazip/quazip.h>

#include <array>

namespace {

using DocumentPointer = std::shared_ptr<const Ofd::Document>;

/** The entries of an archive in their order, with what tells whether their bytes are the same. */
QStringList entriesOf(QByteArray archive)
{
    QBuffer buffer(&archive);
    QuaZip zip(&buffer);
    zip.open(QuaZip::mdUnzip);
    QStringList entries;
    const QList<QuaZipFileInfo64> list = zip.getFileInfoList64();
    for (const QuaZipFileInfo64 &info : list)
        entries.append(QStringLiteral("%1 %2 %3 %4 %5")
                           .arg(info.name, info.dateTime.toString(Qt::ISODate))
                           .arg(info.crc)
                           .arg(info.method)
                           .arg(info.compressedSize));
    return entries;
}

DocumentPointer withChanges(const DocumentPointer &document,
                            const QMap<int, Ofd::AnnotationChanges> &changes)
{
    return OfdFiles::read(Ofd::withChanges(*document, changes));
}

Ofd::AnnotationDraft draftOf(MarkKind kind, const Ofd::Document &document)
{
    Mark mark;
    mark.kind = kind;
    mark.points << QPointF(10, 20.125) << QPointF(1 / 3.0, 88) << QPointF(30, 40.1);
    mark.colour = QColor(1, 2, 3, 77);
    Ofd::AnnotationDraft draft = MarkAnnotation::draftOf(mark);
    Ofd::DrawnPath drawn;
    drawn.path.addRect(mark.rect());
    drawn.fill = mark.colour;
    drawn.pen = QPen(Qt::black, 2, Qt::DashLine, Qt::RoundCap);
    MarkAnnotation::setAppearance(draft, {drawn}, document.area(0).topLeft());
    return draft;
}

/** Adds a highlight to the first page. */
DocumentPointer marked(const DocumentPointer &document)
{
    QMap<int, Ofd::AnnotationChanges> changes;
    changes[0].added.append(draftOf(MarkKind::Highlight, *document));
    return withChanges(document, changes);
}

QMap<int, QVector<Ofd::Annotation>> headsOf(const DocumentPointer &document)
{
    return Ofd::Annotations::heads(*document, Ofd::DocumentRoot(*document));
}

} // namespace

/** Annotations are written into a copy of the file and read again. */
class TestAnnotations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepAllOtherEntriesAndAnnotations()
    {
        const auto document = OfdFiles::opened("acts");
        QMap<int, Ofd::AnnotationChanges> changes;
        changes[0].remarks.insert(1, QStringLiteral("新\n<备注>"));
        changes[0].date = QStringLiteral("2026-01-02");
        changes[1].added.append(draftOf(MarkKind::Highlight, *document));
        const QByteArray written = Ofd::withChanges(*document, changes);
        const auto before = entriesOf(document->package->archive());
        const auto after = entriesOf(written);
        QCOMPARE(after.size(), before.size() + 1);
        QStringList changed;
        for (int i = 0; i < before.size(); ++i) {
            if (before.at(i) != after.at(i))
                changed.append(before.at(i).section(' ', 0, 0));
        }
        QCOMPARE(changed, QStringList({"Doc_0/Document.xml", "Doc_0/Annots/Annotations.xml",
                                       "Doc_0/Annots/Page_0.xml"}));

        const auto again = OfdFiles::read(written);
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
        changes[0].added = {draftOf(MarkKind::Highlight, *document),
                            draftOf(MarkKind::Rectangle, *document)};
        const auto again = withChanges(document, changes);
        QVERIFY(again);
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

    void shouldTakeForAMarkOnlyWhatIsOne()
    {
        const auto written = marked(OfdFiles::opened("clips")); // Which has no annotations.
        QVERIFY(written);
        const QList<std::array<const char *, 2>> rows{
            // A text of the annotation, and another one in its place.
            {"Boundary", "Boundary"},
            {"<ofd:Appearance Boundary=\"", "<ofd:Appearance Boundary=\"1"},
            {"#4d010203", "colour"},
            {"MarkWidth\">", "MarkWidth\">-"},
            {"MarkPoints\">", "MarkPoints\">1e300 "},
            {"MarkPoints", "Points"},
            {"Subtype=\"", "Subtype=\"x"}};
        for (const auto &[from, to] : rows) {
            const auto changed = OfdFiles::read(OfdFiles::replaced(
                *written, QStringLiteral("Doc_0/Annots/Page_0/Annotation.xml"), from, to));
            QVERIFY2(changed, to);
            const auto marks = MarkAnnotation::marksOf(*changed, Ofd::DocumentRoot(*changed));
            QCOMPARE(marks.size(), 1);
            const bool isMark = qstrcmp(from, to) == 0;
            QVERIFY2(marks.first().kind == (isMark ? MarkKind::Highlight : MarkKind::Annotation),
                     to);
        }
    }

    void shouldSurviveHostileLists_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const char *index = "Annotations.xml";
        const char *list = "Page_0.xml";
        const QByteArray end = "</ofd:PageAnnot>";
        const QByteArray second = "<ofd:Page PageID=\"2\"><ofd:FileLoc>Page_0.xml</ofd:FileLoc>"
                                  "</ofd:Page></ofd:Annotations>";
        const auto add = [](const char *name, const char *path, const QByteArray &from,
                            const QByteArray &to) {
            QTest::newRow(name) << QStringLiteral("Doc_0/Annots/%1").arg(path) << from << to;
        };
        add("cut", list, end, "");
        add("DTD", list, "<ofd:PageAnnot", "<!DOCTYPE a [<!ENTITY b \"c\">]><ofd:PageAnnot");
        add("empty", list, end, "<ofd:Annot/>" + end);
        add("same", list, "ID=\"922\"", "ID=\"920\"");
        add("high", list, "ID=\"922\"", "ID=\"9223372036854775807\"");
        add("nested", list, end, "<ofd:Annot><ofd:Annot/></ofd:Annot>" + end);
        add("box", list, "15 25 20 10", "nan inf 1 1");
        add("outside", index, ">Page_0.xml", ">../../../Page_0.xml");
        add("missing", index, ">Page_0.xml", ">None.xml");
        add("no page", index, "\"1\"", "\"77\"");
        add("shared", index, "</ofd:Annotations>", second);
        add("itself", index, ">Page_0.xml", ">Annotations.xml");
    }

    /** They are read or refused; what is added to those that are read is there afterwards. */
    void shouldSurviveHostileLists()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const QByteArray archive = OfdFiles::replaced(*OfdFiles::opened("acts"), path, from, to);
        QVERIFY(!archive.isEmpty());
        const auto document = OfdFiles::read(archive);
        if (!document)
            return;
        try {
            const auto again = marked(document);
            QVERIFY(again);
            const int before = int(headsOf(document).value(0).size());
            QCOMPARE(headsOf(again).value(0).size(), before + 1);
        } catch (const Ofd::Fault &fault) {
            QVERIFY(!fault.message.isEmpty());
        }
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

    void shouldReadPermissions()
    {
        const QString today = QDate::currentDate().toString(Qt::ISODate);
        const QList<std::pair<QString, const char *>> rows{
            {"", ""},
            {"<Edit>true</Edit><Print Printable='true'/>", ""},
            {"<Edit>false</Edit><Annot>0</Annot><Export> false </Export><Signature>false"
             "</Signature><Watermark>false</Watermark><Print Printable='false'/>",
             "edit annot export sign watermark print"},
            {"<Print Printable='true' Copies='0'/>", "print"},
            {"<ValidPeriod EndDate='2020-01-01'/>", "period"},
            {"<ValidPeriod StartDate='2999-01-01T00:00:00'/>", "period"},
            {"<ValidPeriod EndDate='" + today + "'/>", ""}};
        for (const auto &[inside, denied] : rows) {
            const QString xml = "<Document><Permissions>" + inside + "</Permissions></Document>";
            const auto permissions =
                Ofd::Permissions::of(Ofd::XmlElement::parse(xml.toUtf8(), "test"));
            QStringList found;
            for (const auto &[isAllowed, name] :
                 {std::pair{permissions.mayEdit, "edit"},
                  {permissions.mayAnnotate, "annot"},
                  {permissions.mayExport, "export"},
                  {permissions.maySign, "sign"},
                  {permissions.mayAddWatermark, "watermark"},
                  {permissions.mayPrint, "print"},
                  {permissions.isValidAt(QDateTime::currentDateTime()), "period"}}) {
                if (!isAllowed)
                    found.append(name);
            }
            QCOMPARE(found.join(' '), QString(denied));
        }
    }
};

QTEST_MAIN(TestAnnotations)
#include "tst_annotations.moc"
