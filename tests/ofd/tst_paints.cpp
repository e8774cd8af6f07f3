// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Expansion.h"
#include "ofd/Fault.h"
#include "ofd/Painter.h"
#include "ofd/ResourceReader.h"

#include "tests/ofd/OfdFiles.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

#include <ctime>

namespace {

constexpr int side = 400;
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

QString square(const QString &fill)
{
    return QStringLiteral("<PathObject Boundary='0 0 100 100' Fill='true' Stroke='false'>"
                          "<FillColor>%1</FillColor>"
                          "<AbbreviatedData>M 0 0 L 100 0 L 100 100 L 0 100 C</AbbreviatedData>"
                          "</PathObject>")
        .arg(fill);
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

/** Reads a square with that colour, as a page or a composite would contain it. */
std::shared_ptr<Ofd::Document> documentOf(const QString &fill, const QString &attributes = {})
{
    const Ofd::Package package(OfdFiles::path("axial"));
    auto document = std::make_shared<Ofd::Document>();
    QMap<QString, int> unsupported;
    Ofd::ResourceReader reader(package, document->resources, unsupported);
    const QString text = "<Layer>"
                         + square(fill).replace("<FillColor>", "<FillColor " + attributes + ">")
                         + "</Layer>";
    const auto layer = Ofd::XmlElement::parse(text.toUtf8(), "layer");
    Ofd::Page page;
    page.area = QRectF(0, 0, 100, 100);
    page.layers.append(
        std::make_shared<Ofd::Objects>(reader.objects().readAll(layer, Ofd::Style())));
    for (auto kind = unsupported.cbegin(); kind != unsupported.cend(); ++kind)
        document->unsupported.add(kind.key(), *kind);
    document->pages = std::make_unique<Ofd::PageStore>(1, page.area, [page](int) { return page; });
    return document;
}

void paint(const std::shared_ptr<const Ofd::Document> &document, QPaintDevice *device)
{
    QPainter painter(device);
    painter.scale(device->width() / 100.0, device->height() / 100.0);
    Ofd::Painter(document).paint(painter, 0);
}

QImage painted(const std::shared_ptr<const Ofd::Document> &document)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    paint(document, &image);
    return image;
}

bool isRefused(const Ofd::Document &document)
{
    try {
        Ofd::checkExpansion(*document.page(0), document);
        return false;
    } catch (const Ofd::Fault &) {
        return true;
    }
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
        const auto document = documentOf(fill);
        QCOMPARE(document->unsupported.all().size(), 1);
        QCOMPARE(painted(document).pixelColor(side / 2, side / 2), QColor(Qt::white));
        const auto coloured = documentOf(fill, "Value='0 0 255'");
        QCOMPARE(coloured->unsupported.all().size(), 1);
        QCOMPARE(painted(coloured).pixelColor(side / 2, side / 2), QColor(Qt::blue));
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
        QVERIFY(document->unsupported.isEmpty());
        QVERIFY(!isRefused(*document));
        const std::clock_t start = std::clock();
        const QColor colour = painted(document).pixelColor(side / 4, side / 2);
        // Processor time, which does not depend on other programs; without limits it is hours.
        QVERIFY((std::clock() - start) / CLOCKS_PER_SEC < 20);
        QVERIFY2(colour.red() > 250 && colour.blue() < 10, qPrintable(colour.name()));
    }

    void shouldRefusePatternsWithoutEnd()
    {
        QVERIFY(isRefused(*documentOf(nested(12))));
        const auto circle = documentOf(pattern(
            "Width='9' Height='9'", "<CompositeObject ResourceID='1' Boundary='0 0 9 9'/>"));
        circle->resources.composites.insert("1", circle->page(0)->layers.first());
        QVERIFY(isRefused(*circle));
    }

    /** Qt ignores the transforms of textures there. */
    void shouldWriteNoTexturesToPdfFiles()
    {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QPdfWriter writer(&file);
        paint(documentOf(pattern("Width='9' Height='9'", square(axial(ends)))), &writer);
        QVERIFY(file.data().contains("/Subtype /Image"));
        QVERIFY(!file.data().contains("/PatternType 1"));
    }
};

QTEST_MAIN(TestPaints)
#include "tst_paints.moc"
