// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "ofd/Document.h"
#include "ofd/PageText.h"
#include "ofd/Painter.h"
#include "ofd/PathData.h"
#include "tests/ofd/OfdFiles.h"
#include "tests/support/Icons.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <ctime>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

using OfdFiles::painted;
using OfdFiles::pixelsPerMillimetre;

QString samplePath(const QString &name)
{
    return QDir(QStringLiteral(OFD_SAMPLES)).filePath(name + ".ofd");
}

std::shared_ptr<const Ofd::Document> sample(const QString &name)
{
    QString error;
    const auto document = Ofd::read(samplePath(name), &error);
    return error.isEmpty() ? document : nullptr;
}

QColor at(const QImage &image, qreal x, qreal y)
{
    return image.pixelColor(qRound(x * pixelsPerMillimetre), qRound(y * pixelsPerMillimetre));
}

bool isNear(const QColor &a, const QColor &b, int most = 13)
{
    return qAbs(a.red() - b.red()) < most && qAbs(a.green() - b.green()) < most
           && qAbs(a.blue() - b.blue()) < most;
}

QRect inHundredths(const QRectF &place)
{
    return QRectF(place.topLeft() * 100, place.size() * 100).toRect();
}

constexpr QSizeF sheet(210, 297);
constexpr int million = 1000000;
const QString wholeSheet = QStringLiteral("M 0 0 L 210 0 L 210 297 L 0 297 C");

Ofd::Object stroked(const QString &data)
{
    Ofd::Object object;
    object.content = Ofd::Path{Ofd::pathFromData(data), false, true};
    return object;
}

Ofd::Object filled(const QString &data, Qt::FillRule rule)
{
    Ofd::Path path{Ofd::pathFromData(data), true, false};
    path.path.setFillRule(rule);
    Ofd::Object object;
    object.style.fill = QBrush(Qt::black);
    object.content = path;
    object.style.fill = QBrush(Qt::black);
    return object;
}

Ofd::Object clippedBy(Ofd::Object object, const QString &data)
{
    object.clips.append({Ofd::pathFromData(data), {}});
    return object;
}

/** Data of a path through @p count points; @p place gives the position of each by its index. */
template <typename Place>
QString through(int count, Place place)
{
    QString data;
    for (int i = 0; i < count; ++i) {
        const QPointF point = place(i);
        data += QChar(i == 0 ? 'M' : 'L') + QString::number(point.x(), 'f', 2) + ' '
                + QString::number(point.y(), 'f', 2);
    }
    return data;
}

QString scribble(int count, qreal step)
{
    QRandomGenerator random(1);
    QPointF at(100, 150);
    return through(count, [&](int) {
        at += QPointF(random.bounded(2 * step) - step, random.bounded(2 * step) - step);
        at = QPointF(qBound(2.0, at.x(), 208.0), qBound(2.0, at.y(), 295.0));
        return at;
    });
}

QString acrossThePage()
{
    QRandomGenerator random(2);
    return through(million,
                   [&](int) { return QPointF(random.bounded(210.0), random.bounded(297.0)); });
}

/** Lines that cross each other at all angles. */
QString rosette(int count, int turns)
{
    return through(count, [=](int i) {
        const qreal angle = 2 * M_PI * turns * i / count;
        return QPointF(105 + 95 * std::sin(angle), 148 + 130 * std::sin(1.07 * angle + 0.5));
    });
}

std::shared_ptr<const Ofd::Document> documentOf(const Ofd::Object &object)
{
    auto document = std::make_shared<Ofd::Document>();
    Ofd::Page page;
    page.area = QRectF(QPointF(), sheet);
    page.layers.append(std::make_shared<Ofd::Objects>(Ofd::Objects{object}));
    document->pages = std::make_unique<Ofd::PageStore>(1, page.area, [page](int) { return page; });
    return document;
}

/** The path object as Qt paints it. */
QImage expected(const Ofd::Object &object)
{
    QImage image((sheet * pixelsPerMillimetre).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
    painter.setOpacity(object.alpha);
    painter.setTransform(object.placement(), true);
    for (const Ofd::Clip &clip : object.clips)
        painter.setClipPath(clip.path, Qt::IntersectClip);
    const auto &path = std::get<Ofd::Path>(object.content);
    if (path.isFilled)
        painter.fillPath(path.path, std::get<QBrush>(*object.style.fill));
    if (path.isStroked)
        painter.strokePath(path.path, object.style.pen());
    return image;
}

int inkOf(const QImage &image)
{
    return pixelsOf(image, [](const QColor &colour) { return colour != Qt::white; });
}

/** How many pixels differ by more than a rounding error. */
int differencesBetween(const QImage &one, const QImage &other)
{
    constexpr int rounding = 32;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += isNear(one.pixelColor(x, y), other.pixelColor(x, y), rounding) ? 0 : 1;
    }
    return count;
}

/** How objects may differ from plain lines, by name. */
QList<std::pair<const char *, Ofd::Object>> objects()
{
    const QString course = rosette(400, 15);
    const Ofd::Object lines = stroked(course);
    Ofd::Object wide = lines;
    wide.style.lineWidth = 2;
    wide.style.join = Qt::MiterJoin;
    wide.alpha = 0.5;
    Ofd::Object dots = wide;
    dots.style.join = Qt::RoundJoin;
    dots.style.cap = Qt::RoundCap;
    dots.style.dashes = QVector<qreal>{0, 4};
    dots.style.dashOffset = 1;
    Ofd::Object distorted = lines;
    distorted.matrix = QTransform(1.6, .3, -.1, 1.4, 60, -100);
    QLinearGradient gradient(0, 0, 210, 0);
    gradient.setStops({{0, Qt::red}, {1, Qt::blue}});
    Ofd::Object coloured = filled(course, Qt::OddEvenFill);
    coloured.style.fill = QBrush(gradient);
    const Ofd::Object clipped = clippedBy(lines, "M 9 9 L 100 9 L 100 290 C");
    return {{"many points", stroked(scribble(20000, 3))},
            {"very many points", stroked(rosette(60000, 15))},
            {"closed", stroked(course + 'C')},
            {"turned and partly off the page", distorted},
            {"non-zero", filled(course, Qt::WindingFill)},
            {"in a gradient", coloured},
            {"two clips", clippedBy(clipped, rosette(500, 17))},
            {"wide and transparent", wide},
            {"dots", dots}};
}

} // namespace

/** Reading and painting OFD files, also paths of very many lines, and refusing broken files. */
class OfdTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMatchTheScriptThatWritesTheSamples()
    {
        QProcess script;
        script.start("python3", {QDir(OFD_SAMPLES).filePath("make_samples.py"), "--check"});
        QVERIFY2(script.waitForFinished(), "python3 does not run");
        QVERIFY2(script.exitCode() == 0, script.readAllStandardError().constData());
    }

    void shouldReadTheSamples()
    {
        const QList<std::tuple<QString, int, QSizeF, QString>> rows{
            {"text", 2, {148, 105}, "版式文档示例"},
            {"paths", 1, {210, 297}, ""},
            {"image", 1, {210, 297}, ""},
            {"template", 2, {210, 297}, "模板在前\n块中之块\n批注外观"}};
        for (const auto &[name, pages, lastSize, text] : rows) {
            const auto document = sample(name);
            QVERIFY2(document, qPrintable(name));
            QCOMPARE(document->pageCount(), pages);
            QCOMPARE(document->area(pages - 1).size(), lastSize);
            Ofd::Painter painter(document);
            const Ofd::PageText found = textOf(*document, 0, painter.fonts());
            QCOMPARE(found.text.left(text.size()), text);
            QCOMPARE(found.boxes.size(), found.text.size());
            QVERIFY(!painted(document, 0).isNull() && document->unsupported.isEmpty());
        }
    }

    void shouldReadInformationOutlineBookmarksAndPlacesOfCharacters()
    {
        const auto document = sample("text");
        QVERIFY(document);
        QCOMPARE(document->title, QString("文字示例"));
        QVERIFY(document->information.contains({"作者", "示例作者"}));
        QVERIFY(document->information.contains({"关键词", "示例、版式"}));
        QCOMPARE(document->outline.size(), 2);
        QCOMPARE(document->outline.last().depth, 1);
        QCOMPARE(document->outline.last().page, 1);
        QVERIFY(!document->outline.last().destination.top);
        QCOMPARE(document->bookmarks.value(0).title, QString("小页"));
        Ofd::Painter painter(document);
        const Ofd::PageText text = textOf(*document, 0, painter.fonts());
        // Boundary 20 40, baseline 4 below it, distances "g 17 4": the fifth one is at 20 + 16.
        const QRectF box = text.boxes.at(text.text.indexOf("页面由文字") + 4);
        QVERIFY(box.left() == 36.0 && box.top() < 44 && box.bottom() > 44 && box.height() < 5);
    }

    void shouldRefuseABrokenFileAndKeepTheOpenDocument()
    {
        Document document;
        QString error;
        QVERIFY(document.open(samplePath("text"), &error));
        document.addMark(Mark(), "mark");
        const QSignalSpy changes(&document, &Document::pagesChanged);
        for (const auto &[file, reason] : {std::pair{"broken-truncated", "不完整"},
                                           {"broken-encrypted", "加密"},
                                           {"broken-bomb", "异常巨大"},
                                           {"broken-escape", "包外"},
                                           {"broken-location", "包外"},
                                           {"broken-parameter-loop", "循环引用"},
                                           {"broken-page-size", "页面尺寸"},
                                           {"no-such-file", "不存在"}}) {
            QVERIFY2(!document.open(samplePath(file), &error), file);
            QVERIFY2(error.contains(reason) && error.indexOf("。") == error.size() - 1,
                     qPrintable(error));
        }
        QVERIFY(changes.isEmpty() && document.pageCount() == 2 && document.marks().size() == 1);
        QCOMPARE(document.title(), QString("text.ofd"));
    }

    void shouldRefuseEveryTruncatedFile()
    {
        QFile file(samplePath("template"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        QTemporaryDir folder;
        for (int length = 0; length < whole.size(); length += 97) {
            QFile part(folder.filePath("part.ofd"));
            QVERIFY(part.open(QIODevice::WriteOnly));
            part.write(whole.left(length));
            part.close();
            QString error;
            QVERIFY(!Ofd::read(part.fileName(), &error) && !error.isEmpty());
        }
    }

    void shouldBuildAPathFromItsCommands()
    {
        const QList<std::pair<const char *, QRectF>> bounds{
            {"M1,2L11 7C", {1, 2, 10, 5}},
            {"M 0 0 Q 5 10 10 0", {0, 0, 10, 5}},
            {"M 0 0 B 0 8 10 8 10 0", {0, 0, 10, 6}},
            {"M 0 5 A 5 5 0 0 0 5 10", {0, 5, 5, 5}},
            {"M 0 5 A 1 1 0 0 1 10 5", {0, 0, 10, 5}},
            {"M 0 0 L 4 4 L 9", {0, 0, 4, 4}},
            {"M 0 0 L 4 4 Z L 9 9", {0, 0, 4, 4}}};
        for (const auto &[data, wanted] : bounds) {
            const QRectF found = Ofd::pathFromData(data).boundingRect();
            QVERIFY2(inHundredths(found) == inHundredths(wanted), data);
        }
    }

    void shouldPaintTheExpectedColours_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QPointF>("place");
        QTest::addColumn<QColor>("colour");
        const QColor white(Qt::white);
        QTest::newRow("paths: non-zero") << 0 << QPointF(40, 42) << QColor(250, 210, 60);
        QTest::newRow("paths: even-odd") << 0 << QPointF(100, 42) << white;
        QTest::newRow("paths: arc") << 0 << QPointF(50, 90) << QColor(60, 140, 70);
        QTest::newRow("paths: inside the clip") << 0 << QPointF(160, 100) << QColor(120, 60, 160);
        QTest::newRow("paths: outside the clip") << 0 << QPointF(142, 82) << white;
        QTest::newRow("paths: alpha over red") << 0 << QPointF(160, 160) << QColor(130, 60, 130);
        QTest::newRow("paths: dash") << 0 << QPointF(22, 205) << QColor(Qt::black);
        QTest::newRow("paths: dot") << 0 << QPointF(30, 220) << QColor(Qt::black);
        QTest::newRow("paths: relative") << 0 << QPointF(140, 40) << QColor(200, 40, 40);
        QTest::newRow("image: by matrix") << 0 << QPointF(25, 25) << QColor(150, 200, 240);
        QTest::newRow("image: by boundary") << 0 << QPointF(125, 48) << QColor(60, 140, 70);
        QTest::newRow("image: turned") << 0 << QPointF(141, 62) << QColor(150, 200, 240);
        QTest::newRow("template: background") << 1 << QPointF(105, 10) << QColor(210, 230, 250);
        QTest::newRow("template: CMYK") << 1 << QPointF(40, 50) << QColor(255, 55, 255);
        QTest::newRow("template: composite") << 0 << QPointF(35, 70) << QColor(250, 210, 60);
        QTest::newRow("template: larger one") << 0 << QPointF(90, 100) << QColor(250, 210, 60);
        QTest::newRow("text: embedded glyph") << 0 << QPointF(25, 166) << QColor(90, 60, 160);
        QTest::newRow("text: glyph by index") << 0 << QPointF(33.5, 162.5) << QColor(90, 60, 160);
        QTest::newRow("text: corner of a triangle") << 0 << QPointF(45.5, 162.5) << white;
    }

    void shouldPaintTheExpectedColours()
    {
        QFETCH(int, page);
        QFETCH(QPointF, place);
        QFETCH(QColor, colour);
        const auto document = sample(QString(QTest::currentDataTag()).section(':', 0, 0));
        QVERIFY(document);
        const QColor found = at(painted(document, page), place.x(), place.y());
        QVERIFY2(isNear(found, colour), qPrintable(found.name()));
    }

    void shouldPaintAMillionPointsInSeconds()
    {
#ifdef __GLIBC__
        // To overwrite what a growing list frees behind itself can take ten times as long.
        mallopt(M_PERTURB, 0);
#endif
        // Processor time, which does not depend on other programs, with room for sanitizers.
        constexpr int mostSeconds = 20;
        for (const char *use : {"stroke", "dashes", "fill", "clip"}) {
            for (const bool isScribble : {true, false}) {
                if (*use == (isScribble ? 'c' : 'd'))
                    continue;
                const std::clock_t start = std::clock();
                const QString data = isScribble ? scribble(million, 1.5) : acrossThePage();
                Ofd::Object object = *use == 'f' ? filled(data, Qt::OddEvenFill) : stroked(data);
                if (*use == 'd')
                    object.style.dashes = QVector<qreal>{20, 10};
                else if (*use == 'c')
                    object = clippedBy(filled(wholeSheet, Qt::WindingFill), data);
                QVERIFY(inkOf(painted(documentOf(object), 0)) > 50000);
                QVERIFY2((std::clock() - start) / CLOCKS_PER_SEC < mostSeconds, use);
            }
        }
    }

    void shouldLookAsQtPaintsThem()
    {
        constexpr int mostDifferences = 200;
        for (const auto &[name, object] : objects()) {
            const QImage wanted = expected(object);
            QVERIFY2(inkOf(wanted) > 10000, name);
            QVERIFY2(differencesBetween(painted(documentOf(object), 0), wanted) < mostDifferences,
                     name);
        }
    }
};

QTEST_MAIN(OfdTest)
#include "tst_ofd.moc"
