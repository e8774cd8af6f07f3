// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "ofd/Document.h"
#include "ofd/PageText.h"
#include "ofd/Painter.h"
#include "ofd/PathData.h"
#include "ofd/Values.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int pixelsPerMillimetre = 4;

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

QImage painted(const std::shared_ptr<const Ofd::Document> &document, int page)
{
    const QSizeF size = document->pages.at(page).area.size() * pixelsPerMillimetre;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
    Ofd::Painter(document).paint(painter, page);
    return image;
}

QColor at(const QImage &image, qreal x, qreal y)
{
    return image.pixelColor(qRound(x * pixelsPerMillimetre), qRound(y * pixelsPerMillimetre));
}

/** The painted share, 0 to 1, of an area of the page in millimetres. */
qreal inkIn(const QImage &image, const QRectF &part)
{
    const QRect pixels =
        QRectF(part.topLeft() * pixelsPerMillimetre, part.size() * pixelsPerMillimetre).toRect();
    int count = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            count += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
    }
    return qreal(count) / (pixels.width() * pixels.height());
}

bool isNear(const QColor &a, const QColor &b)
{
    constexpr int most = 12;
    return qAbs(a.red() - b.red()) < most && qAbs(a.green() - b.green()) < most
           && qAbs(a.blue() - b.blue()) < most;
}

QRect inHundredths(const QRectF &place)
{
    return QRectF(place.topLeft() * 100, place.size() * 100).toRect();
}

} // namespace

/** Reading and painting OFD files, and refusing broken ones. */
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

    void shouldReadTheSamples_data()
    {
        QTest::addColumn<int>("pages");
        QTest::addColumn<QSizeF>("lastSize");
        QTest::addColumn<QString>("text");
        QTest::newRow("text") << 2 << QSizeF(148, 105) << "版式文档示例";
        QTest::newRow("paths") << 1 << QSizeF(210, 297) << "";
        QTest::newRow("image") << 1 << QSizeF(210, 297) << "";
        QTest::newRow("template") << 2 << QSizeF(210, 297) << "块中之块\n模板在前\n批注外观";
    }

    void shouldReadTheSamples()
    {
        QFETCH(int, pages);
        QFETCH(QString, text);
        const auto document = sample(QTest::currentDataTag());
        QVERIFY(document);
        QCOMPARE(int(document->pages.size()), pages);
        QTEST(document->pages.last().area.size(), "lastSize");
        Ofd::Painter painter(document);
        const Ofd::PageText found = textOf(*document, 0, painter.fonts());
        QCOMPARE(found.text.left(text.size()), text);
        QCOMPARE(found.boxes.size(), found.text.size());
        QVERIFY(document->unsupported.isEmpty());
        QVERIFY(painter.unpaintable().isEmpty());
    }

    void shouldReadInformationOutlineAndBookmarks()
    {
        const auto document = sample("text");
        QVERIFY(document);
        QCOMPARE(document->title, QString("文字示例"));
        QVERIFY(document->information.contains({"作者", "示例作者"}));
        QVERIFY(document->information.contains({"关键词", "示例、版式"}));
        QCOMPARE(document->outline.size(), 2);
        QCOMPARE(document->outline.last().depth, 1);
        QCOMPARE(document->outline.last().page, 1);
        QCOMPARE(document->bookmarks.value(0).title, QString("小页"));
    }

    void shouldPlaceCharactersByTheirDistances()
    {
        const auto document = sample("text");
        QVERIFY(document);
        Ofd::Painter painter(document);
        const Ofd::PageText text = textOf(*document, 0, painter.fonts());
        // Boundary 20 40, baseline 4 below it, distances "g 17 4": the fifth one is at 20 + 16.
        const int start = int(text.text.indexOf("页面由文字"));
        const QRectF box = text.boxes.at(start + 4);
        QCOMPARE(box.left(), 36.0);
        QVERIFY(box.top() < 44 && box.bottom() > 44 && box.height() < 5);
    }

    void shouldRefuseABrokenFileAndKeepTheOpenDocument_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("broken-truncated") << "不完整";
        QTest::newRow("broken-encrypted") << "加密";
        QTest::newRow("broken-bomb") << "异常巨大";
        QTest::newRow("broken-escape") << "包外";
        QTest::newRow("broken-location") << "包外";
        QTest::newRow("broken-composite-loop") << "循环引用";
        QTest::newRow("broken-template-loop") << "循环引用";
        QTest::newRow("broken-parameter-loop") << "循环引用";
        QTest::newRow("broken-depth") << "嵌套过深";
        QTest::newRow("broken-page-size") << "页面尺寸";
        QTest::newRow("broken-font-size") << "字号";
        QTest::newRow("broken-dashes") << "虚线";
        QTest::newRow("no-such-file") << "不存在";
    }

    void shouldRefuseABrokenFileAndKeepTheOpenDocument()
    {
        QFETCH(QString, reason);
        Document document;
        QString error;
        QVERIFY(document.open(samplePath("text"), &error));
        document.addMark(Mark(), "mark");
        const QSignalSpy changes(&document, &Document::pagesChanged);
        QVERIFY(!document.open(samplePath(QTest::currentDataTag()), &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QCOMPARE(error.count("。"), 1);
        QVERIFY(error.endsWith("。"));
        QCOMPARE(changes.size(), 0);
        QCOMPARE(document.pageCount(), 2);
        QCOMPARE(document.marks().size(), 1);
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
            QVERIFY(!Ofd::read(part.fileName(), &error));
            QVERIFY(!error.isEmpty());
        }
    }

    void shouldUndoTurningAndNotCountItAsAModification()
    {
        Document document;
        QString error;
        QVERIFY(document.open(samplePath("text"), &error));
        document.turn(1, "turn");
        document.turn(1, "turn");
        QCOMPARE(document.quarters(), 2);
        QVERIFY(!document.isModified());
        document.undoStack().undo();
        QCOMPARE(document.quarters(), 1);
        document.addMark(Mark(), "mark");
        QVERIFY(document.isModified());
        document.undoStack().undo();
        document.undoStack().redo();
        QVERIFY(document.isModified());
    }

    void shouldExpandRepeatedDistances()
    {
        constexpr int most = 4;
        const QList<std::pair<const char *, QVector<qreal>>> unfolded{{"1 2 3", {1, 2, 3}},
                                                                      {"g 3 5", {5, 5, 5}},
                                                                      {"1 g 2 5 7", {1, 5, 5, 7}},
                                                                      {"g 1000000 5", {5, 5, 5, 5}},
                                                                      {"g 2", {}},
                                                                      {"1 x 3", {1}},
                                                                      {"g -4 5 1", {1}}};
        for (const auto &[text, distances] : unfolded)
            QVERIFY2(Ofd::Values::deltas(text, most) == distances, text);
    }

    void shouldBuildAPathFromItsCommands_data()
    {
        QTest::addColumn<QRectF>("bounds");
        QTest::newRow("M 1 2 L 11 7") << QRectF(1, 2, 10, 5);
        QTest::newRow("S 1 2 L 11 7") << QRectF(1, 2, 10, 5);
        QTest::newRow("M1,2L11 7C") << QRectF(1, 2, 10, 5);
        QTest::newRow("M 0 0 Q 5 10 10 0") << QRectF(0, 0, 10, 5);
        QTest::newRow("M 0 0 B 0 8 10 8 10 0") << QRectF(0, 0, 10, 6);
        QTest::newRow("M 0 5 A 5 5 0 0 1 10 5") << QRectF(0, 0, 10, 5);
        QTest::newRow("M 0 5 A 5 5 0 0 0 10 5") << QRectF(0, 5, 10, 5);
        QTest::newRow("M 0 5 A 5 5 0 1 1 5 10") << QRectF(0, 0, 10, 10);
        QTest::newRow("M 0 5 A 5 5 0 0 0 5 10") << QRectF(0, 5, 5, 5);
        QTest::newRow("M 0 5 A 1 1 0 0 1 10 5") << QRectF(0, 0, 10, 5);
        QTest::newRow("M 0 0 L 4 4 L 9") << QRectF(0, 0, 4, 4);
        QTest::newRow("M 0 0 L 4 4 Z L 9 9") << QRectF(0, 0, 4, 4);
        QTest::newRow("") << QRectF();
    }

    void shouldBuildAPathFromItsCommands()
    {
        QFETCH(QRectF, bounds);
        const QRectF found = Ofd::pathFromData(QTest::currentDataTag()).boundingRect();
        QCOMPARE(inHundredths(found), inHundredths(bounds));
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
        QTest::newRow("paths: outside the arc") << 0 << QPointF(30, 110) << white;
        QTest::newRow("paths: inside the clip") << 0 << QPointF(160, 100) << QColor(120, 60, 160);
        QTest::newRow("paths: outside the clip") << 0 << QPointF(142, 82) << white;
        QTest::newRow("paths: alpha over red") << 0 << QPointF(160, 160) << QColor(130, 60, 130);
        QTest::newRow("paths: dash") << 0 << QPointF(22, 205) << QColor(Qt::black);
        QTest::newRow("paths: gap") << 0 << QPointF(27, 205) << white;
        QTest::newRow("paths: dot") << 0 << QPointF(30, 220) << QColor(Qt::black);
        QTest::newRow("paths: relative") << 0 << QPointF(140, 40) << QColor(200, 40, 40);
        QTest::newRow("image: by matrix") << 0 << QPointF(25, 25) << QColor(150, 200, 240);
        QTest::newRow("image: by boundary") << 0 << QPointF(125, 48) << QColor(60, 140, 70);
        QTest::newRow("image: turned") << 0 << QPointF(141, 62) << QColor(150, 200, 240);
        QTest::newRow("image: beside the turned one") << 0 << QPointF(122, 62) << white;
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

    void shouldPaintTextInsideItsBoxesOnly()
    {
        const auto document = sample("text");
        QVERIFY(document);
        const QImage image = painted(document, 0);
        QVERIFY(inkIn(image, QRectF(20, 20, 54, 9)) > 0.2);
        QVERIFY(inkIn(image, QRectF(150, 91, 7, 30)) > 0.1);
        QCOMPARE(inkIn(image, QRectF(80, 18, 60, 14)), 0.0);
        QCOMPARE(inkIn(image, QRectF(0, 0, 210, 18)), 0.0);
    }
};

QTEST_MAIN(OfdTest)
#include "tst_ofd.moc"
