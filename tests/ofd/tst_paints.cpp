// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Painter.h"
#include "tests/ofd/OfdFiles.h"
#include "tests/ofd/PackageMaker.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

#include <ctime>

namespace {

const QString ends = QStringLiteral("StartPoint='0 0' EndPoint='100 0'");
const QString colour = QStringLiteral("<Color Value='255 0 0'/>");
const QString segments = QStringLiteral("<Segment>%1</Segment><Segment>%1</Segment>").arg(colour);

QString axial(const QString &attributes, const QString &content = segments)
{
    return QStringLiteral("<AxialShd %1>%2</AxialShd>").arg(attributes, content);
}

QString radial(const QString &attributes)
{
    return QStringLiteral("<RadialShd %1>%2</RadialShd>").arg(attributes, segments);
}

QString pattern(const QString &attributes, const QString &content)
{
    return QStringLiteral("<Pattern %1><CellContent>%2</CellContent></Pattern>")
        .arg(attributes, content);
}

QString square(const QString &fill, const QString &attributes = {})
{
    return QStringLiteral("<PathObject Boundary='0 0 100 100' Fill='true' Stroke='false'>"
                          "<FillColor %1>%2</FillColor>"
                          "<AbbreviatedData>M 0 0 L 100 0 L 100 100 L 0 100 C</AbbreviatedData>"
                          "</PathObject>")
        .arg(attributes, fill);
}

QString nested(int depth)
{
    const QString attributes =
        QStringLiteral("Width='10' Height='10' ReflectMethod='RowAndColumn'");
    QString cell = square(axial(ends + " Extend='3'"));
    for (int i = 0; i < depth; ++i)
        cell = square(pattern(attributes, cell + cell));
    return pattern(attributes, cell);
}

/** Points at the corners of the square, again and again. */
QString points(int count, const QString &attributes = {})
{
    QString all;
    for (int i = 0; i < count; ++i) {
        all += QStringLiteral("<Point X='%1' Y='%2' %3>%4</Point>")
                   .arg(i % 2 * 100)
                   .arg(i / 2 % 2 * 100)
                   .arg(attributes, colour);
    }
    return all;
}

QString mesh(const QString &content)
{
    return "<GouraudShd>" + content + "</GouraudShd>";
}

QString lattice(int perRow, int count)
{
    return QStringLiteral("<LaGouraudShd VerticesPerRow='%1'>%2</LaGouraudShd>")
        .arg(perRow)
        .arg(points(count));
}

/** A document whose only page has been read: a square with that colour. */
std::shared_ptr<const Ofd::Document> documentOf(const QString &fill, const QString &attributes = {},
                                                const QString &resources = {})
{
    PackageMaker::Entries entries = PackageMaker::documentOf(1);
    const QString page = "<Page><Area><PhysicalBox>0 0 100 100</PhysicalBox></Area><Content><Layer>"
                         + square(fill, attributes) + "</Layer></Content></Page>";
    entries[PackageMaker::pagePath(0)] = page.toUtf8();
    entries["Doc_0/PublicRes.xml"] = "<Res>" + resources.toUtf8() + "</Res>";
    const auto document = OfdFiles::read(PackageMaker::archive(entries));
    document->page(0);
    return document;
}

/** The colour at a place of the page. */
QColor colourAt(const std::shared_ptr<const Ofd::Document> &document, QPoint place)
{
    return OfdFiles::painted(document).pixelColor(place * OfdFiles::pixelsPerMillimetre);
}

} // namespace

/** Colours that differ from place to place, with values that no sensible program writes. */
class TestPaints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLeaveOutAndNameWhatCannotBePainted_data()
    {
        QTest::addColumn<QString>("fill");
        const QString cell = square(axial(ends));
        QTest::newRow("axis without length") << axial("StartPoint='5 5' EndPoint='5 5'");
        QTest::newRow("no colours") << axial(ends, {});
        QTest::newRow("too many colours") << axial(ends, segments.repeated(3000));
        QTest::newRow("no radius") << radial(ends);
        QTest::newRow("equal circles") << radial("StartPoint='5 5' StartRadius='4' EndRadius='4'");
        QTest::newRow("flat ellipse") << radial(ends + " EndRadius='9' Eccentricity='1'");
        QTest::newRow("two points") << mesh(points(2));
        QTest::newRow("lattice of one column") << lattice(1, 8);
        QTest::newRow("lattice of one row") << lattice(8, 8);
        QTest::newRow("cell without width") << pattern("Width='0' Height='5'", cell);
        QTest::newRow("cell too small") << pattern("Width='0.0001' Height='5'", cell);
        QTest::newRow("unknown kind") << "<ConicalShd/>";
    }

    void shouldLeaveOutAndNameWhatCannotBePainted()
    {
        QFETCH(QString, fill);
        for (const auto &[attributes, colour] :
             {std::pair{"", Qt::white}, {"Value='0 0 255'", Qt::blue}}) {
            const auto document = documentOf(fill, attributes);
            QCOMPARE(document->unsupported.all().size(), 1);
            QCOMPARE(colourAt(document, {50, 50}), QColor(colour));
        }
    }

    void shouldPaintExtremeValuesInLimitedTime_data()
    {
        QTest::addColumn<QString>("fill");
        const QString cell = square(axial(ends + " Extend='3'"));
        const QString far = "StartPoint='-9e6 -9e6' EndPoint='9e6 9e6'";
        QTest::newRow("shortest unit") << axial(ends + " MapType='Repeat' MapUnit='1e-7'");
        QTest::newRow("far ends") << axial(far);
        QTest::newRow("far circles") << radial(far + " StartRadius='9e6' EndRadius='9e6'");
        QTest::newRow("small circles far apart")
            << radial(far + " StartRadius='90' EndRadius='90' MapType='Reflect' MapUnit='1e-7'");
        QTest::newRow("many large triangles") << mesh(points(3) + points(20000, "EdgeFlag='2'"));
        QTest::newRow("tiny cells") << pattern("Width='0.002' Height='0.002'", cell);
        QTest::newRow("flat cells") << pattern("Width='200' Height='0.002'", cell);
        QTest::newRow("huge cells") << pattern("Width='9e6' Height='9e6'", cell);
        QTest::newRow("patterns in patterns") << nested(6);
    }

    void shouldPaintExtremeValuesInLimitedTime()
    {
        QFETCH(QString, fill);
        const auto document = documentOf(fill);
        QVERIFY(document->unsupported.isEmpty() && document->page(0)->fault.isNull());
        const std::clock_t start = std::clock();
        const QColor colour = colourAt(document, {25, 50});
        // Processor time, which does not depend on other programs; without limits it is hours.
        QVERIFY((std::clock() - start) / CLOCKS_PER_SEC < 20);
        QVERIFY2(colour.red() > 250 && colour.blue() < 10, qPrintable(colour.name()));
    }

    void shouldRefusePatternsWithoutEnd()
    {
        QVERIFY(documentOf(nested(12))->page(0)->fault.contains("嵌套过深"));
        const QString circle =
            pattern("Width='9' Height='9'", "<CompositeObject ResourceID='1' Boundary='0 0 9 9'/>");
        const QString unit = "<CompositeGraphicUnits><CompositeGraphicUnit ID='1' Width='100' "
                             "Height='100'><Content>"
                             + square(circle) + "</Content></CompositeGraphicUnit>"
                             + "</CompositeGraphicUnits>";
        QVERIFY(documentOf(circle, {}, unit)->page(0)->fault.contains("循环引用"));
    }

    /** Qt ignores the transforms of textures there. */
    void shouldWriteNoTexturesToPdfFiles()
    {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QPdfWriter writer(&file);
        QPainter painter(&writer);
        Ofd::Painter(documentOf(pattern("Width='9' Height='9'", square(axial(ends)))))
            .paint(painter, 0);
        painter.end();
        QVERIFY(file.data().contains("/Subtype /Image"));
        QVERIFY(!file.data().contains("/PatternType 1"));
    }
};

QTEST_MAIN(TestPaints)
#include "tst_paints.moc"
