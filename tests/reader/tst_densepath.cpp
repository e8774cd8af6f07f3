// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Painter.h"
#include "ofd/PathData.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <ctime>

namespace {

constexpr QSizeF sheet(210, 297);
constexpr int pixelsPerMillimetre = 4;
constexpr int million = 1000000;
const QString wholeSheet = QStringLiteral("M 0 0 L 210 0 L 210 297 L 0 297 C");

} // namespace

Q_DECLARE_METATYPE(Ofd::Object)

namespace {

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
    object.content = path;
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

QString acrossThePage(int count)
{
    QRandomGenerator random(2);
    return through(count,
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

QImage blank()
{
    QImage image((sheet * pixelsPerMillimetre).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QImage painted(const Ofd::Object &object)
{
    auto document = std::make_shared<Ofd::Document>();
    Ofd::Page page;
    page.area = QRectF(QPointF(), sheet);
    page.layers.append(std::make_shared<Ofd::Objects>(Ofd::Objects{object}));
    document->pages.append(page);
    QImage image = blank();
    QPainter painter(&image);
    painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
    Ofd::Painter(document).paint(painter, 0);
    return image;
}

/** The path as lines so short that Qt has no curve to flatten. */
QPainterPath withoutCurves(const QPainterPath &path)
{
    constexpr qreal fineness = 64;
    const QList<QPolygonF> lines =
        path.toSubpathPolygons(QTransform::fromScale(fineness, fineness));
    QPainterPath flat;
    flat.setFillRule(path.fillRule());
    for (const QPolygonF &line : lines)
        flat.addPolygon(QTransform::fromScale(1 / fineness, 1 / fineness).map(line));
    return flat;
}

/** The path object as Qt paints it. */
QImage expected(const Ofd::Object &object)
{
    QImage image = blank();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
    painter.setOpacity(object.alpha);
    painter.setTransform(object.placement(), true);
    for (const QPainterPath &clip : object.clips)
        painter.setClipPath(clip, Qt::IntersectClip);
    const auto &path = std::get<Ofd::Path>(object.content);
    if (path.isFilled)
        painter.fillPath(withoutCurves(path.path), object.style.fillBrush());
    if (path.isStroked)
        painter.strokePath(withoutCurves(path.path), object.style.pen());
    return image;
}

int inkOf(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
    }
    return count;
}

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

/** How many pixels differ by more than a rounding error. */
int differencesBetween(const QImage &one, const QImage &other)
{
    constexpr int rounding = 32;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += difference(one.pixel(x, y), other.pixel(x, y)) > rounding ? 1 : 0;
    }
    return count;
}

Ofd::Object placed(Ofd::Object object, const QTransform &matrix)
{
    object.matrix = matrix;
    return object;
}

Ofd::Object clippedBy(Ofd::Object object, const QString &data)
{
    object.clips.append(Ofd::pathFromData(data));
    return object;
}

} // namespace

/** Paths of very many lines, which the reader paints without Qt's rasteriser. */
class DensePathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintAMillionPointsInSeconds_data()
    {
        QTest::addColumn<QString>("use");
        QTest::addColumn<QString>("course");
        QTest::newRow("scribble") << "stroke"
                                  << "scribble";
        QTest::newRow("lines across the page") << "stroke"
                                               << "across";
        QTest::newRow("smooth line") << "stroke"
                                     << "smooth";
        QTest::newRow("dashed scribble") << "dashes"
                                         << "scribble";
        QTest::newRow("filled scribble") << "fill"
                                         << "scribble";
        QTest::newRow("filled between lines across the page") << "fill"
                                                              << "across";
        QTest::newRow("clipped by lines across the page") << "clip"
                                                          << "across";
    }

    void shouldPaintAMillionPointsInSeconds()
    {
        // Processor time, which does not depend on other programs, with room for sanitizers.
        constexpr int mostSeconds = 20;
        QFETCH(QString, use);
        QFETCH(QString, course);
        const QString data = course == "scribble" ? scribble(million, 1.5)
                             : course == "smooth" ? rosette(million, 20)
                                                  : acrossThePage(million);
        const std::clock_t start = std::clock();
        Ofd::Object object = stroked(data);
        if (use == "dashes")
            object.style.dashes = QVector<qreal>{20, 10};
        else if (use == "fill")
            object = filled(data, Qt::OddEvenFill);
        else if (use == "clip")
            object = clippedBy(filled(wholeSheet, Qt::WindingFill), data);
        const QImage image = painted(object);
        const auto seconds = (std::clock() - start) / CLOCKS_PER_SEC;
        QVERIFY2(seconds < mostSeconds, qPrintable(QString::number(seconds)));
        QVERIFY(inkOf(image) > 50000);
    }

    void shouldLookAsQtPaintsThem_data()
    {
        QTest::addColumn<Ofd::Object>("object");
        const QString course = rosette(400, 15);
        const Ofd::Object lines = stroked(course);
        QTest::newRow("lines") << lines;
        QTest::newRow("many points") << stroked(scribble(20000, 3));
        QTest::newRow("closed") << stroked(course + 'C');
        QTest::newRow("curves") << stroked(QString(course).replace('L', "Q 105 148 "));
        QTest::newRow("partly off the page") << placed(lines, QTransform(2, 0, 0, 2, 60, -300));
        QTest::newRow("turned and distorted") << placed(lines, QTransform(.6, .3, -.1, .4, 60, 40));
        QTest::newRow("even-odd") << filled(course, Qt::OddEvenFill);
        QTest::newRow("non-zero") << filled(course, Qt::WindingFill);
        QTest::newRow("filled curves")
            << filled(QString(course).replace('L', "Q 105 148 "), Qt::OddEvenFill);
        QTest::newRow("clip") << clippedBy(filled(wholeSheet, Qt::WindingFill), course);
        QTest::newRow("two clips")
            << clippedBy(clippedBy(lines, "M 9 9 L 100 9 L 100 290 C"), rosette(500, 17));

        Ofd::Object styled = lines;
        styled.style.lineWidth = 2;
        styled.style.join = Qt::MiterJoin;
        styled.alpha = 0.5;
        QTest::newRow("wide and transparent") << styled;
        styled.style.join = Qt::RoundJoin;
        styled.style.cap = Qt::RoundCap;
        QTest::newRow("round") << styled;
        styled.style.dashes = QVector<qreal>{0, 4};
        QTest::newRow("dots") << styled;
        styled = lines;
        styled.style.dashes = QVector<qreal>{7, 2, 3};
        styled.style.dashOffset = 4;
        QTest::newRow("dashes") << styled;
        QLinearGradient gradient(0, 0, 210, 0);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::blue);
        styled = filled(course, Qt::OddEvenFill);
        styled.style.fill = QBrush(gradient);
        QTest::newRow("gradient") << styled;
    }

    void shouldLookAsQtPaintsThem()
    {
        constexpr int mostDifferences = 200;
        QFETCH(Ofd::Object, object);
        const QImage image = painted(object);
        const QImage wanted = expected(object);
        QVERIFY(inkOf(wanted) > 10000);
        const int differences = differencesBetween(image, wanted);
        QVERIFY2(differences < mostDifferences, qPrintable(QString::number(differences)));
    }
};

QTEST_MAIN(DensePathTest)
#include "tst_densepath.moc"
