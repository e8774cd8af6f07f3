// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "pages/PageCache.h"
#include "pages/PageView.h"
#include "panels/ThumbnailList.h"

#include <QDir>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <ctime>

namespace {

constexpr qreal zoom = 2;
constexpr QSizeF sheetSize(600, 800);
constexpr qreal mostOfStep = 16; ///< In milliseconds: 60 steps in a second.

/** What a painter in another thread was asked for, and how far it may go. */
struct Work
{
    QMutex mutex;
    QVector<QPair<int, QSize>> begun; ///< Page and size of the picture.
    QSemaphore permits{1 << 20};
    std::atomic_bool mustWaitForTheEnd{false};
    std::atomic_int abandoned{0};

    QVector<QPair<int, QSize>> all()
    {
        const QMutexLocker lock(&mutex);
        return begun;
    }
};

void paintLetters(QPainter &painter, int index)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromHsv(index * 40 % 360, 200, 200));
    for (int i = 0; i < 20; ++i)
        painter.drawEllipse(QPointF(30 + i * 28.3, 40 + i * 37.7), 20 + i, 11);
}

class TestPainter : public ContentPainter
{
public:
    explicit TestPainter(Work &work)
        : m_work(work)
    {
    }

    void paint(QPainter &painter, const PaintRequest &request) override
    {
        const QPaintDevice *device = painter.device();
        if (request.isAbandoned)
            waitFor(request, QSize(device->width(), device->height()));
        paintLetters(painter, request.index);
    }
    void readText(int, Page &) override {}

private:
    void waitFor(const PaintRequest &request, QSize size)
    {
        {
            const QMutexLocker lock(&m_work.mutex);
            m_work.begun.append({request.index, size});
        }
        m_work.permits.acquire();
        while (m_work.mustWaitForTheEnd && !*request.isAbandoned)
            QThread::msleep(1);
        m_work.abandoned += *request.isAbandoned ? 1 : 0;
    }

    Work &m_work;
};

class TestContent : public PageContent
{
public:
    TestContent(Work &work, int index)
        : m_work(work)
        , m_painter(work)
        , m_index(index)
    {
    }

    int index() const override { return m_index; }
    ContentPainter &painter() const override { return m_painter; }
    MakeContentPainter painterMaker() const override
    {
        return [&work = m_work] { return std::make_unique<TestPainter>(work); };
    }

private:
    Work &m_work;
    mutable TestPainter m_painter;
    int m_index;
};

QImage paper(qreal scale = zoom, QSizeF size = sheetSize)
{
    QImage image((size * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

/** The page as it is painted without a cache. */
QImage direct(const PageContent &content, qreal scale = zoom, QSizeF size = sheetSize)
{
    QImage image = paper(scale, size);
    QPainter painter(&image);
    painter.scale(scale, scale);
    content.painter().paint(painter, {content.index()});
    return image;
}

/** The page as a view would draw it with the cache. */
QImage drawn(PageCache &cache, const PageContent &content, qreal scale = zoom,
             QSizeF size = sheetSize)
{
    QImage image = paper(scale, size);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.setClipRect(image.rect());
    const PageColours colours = PageColours::of(Background_Default);
    cache.draw(painter, {&content, size, scale, 0, 1, colours}, image.rect());
    cache.request();
    return image;
}

/** Pages in a cache. */
struct Desk
{
    ~Desk() { release(); } // Also when the test has failed, for the painter is waited for.

    QImage draw(int page, qreal scale = zoom)
    {
        return drawn(cache, TestContent(work, page), scale);
    }
    QImage direct(int page, qreal scale = zoom) { return ::direct(TestContent(work, page), scale); }
    /** Draws the page; whether all of it was there. */
    bool isSharp(int page)
    {
        draw(page);
        return cache.isSharp();
    }
    void hold(int tiles = 0) { work.permits.acquire(work.permits.available() - tiles); }
    void release() { work.permits.release(1 << 10); }

    Work work;
    PageCache cache;
};

/** The mean difference of the channels; a blurred picture is near, and an empty one is far. */
qreal distance(const QImage &a, const QImage &b)
{
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += qAbs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y)));
    }
    return qreal(sum) / a.width() / a.height();
}

/** Processor time of this thread in milliseconds, which other programs do not lengthen. */
qreal threadTime()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

/** The mean time of this thread for a step of scrolling with the painting after it. */
qreal timeOfStep(QScrollBar &bar)
{
    constexpr int steps = 300;
    const qreal start = threadTime();
    for (int step = 0; step < steps; ++step) {
        bar.setValue(int(qreal(step) / steps * bar.maximum()) + step % 7 * bar.singleStep());
        QCoreApplication::processEvents();
    }
    const qreal time = (threadTime() - start) / steps;
    qInfo("a step takes %.2f ms", time);
    return time;
}

} // namespace

/** Pages that are painted in another thread while the view shows what it has. */
class PaintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowASmallPictureAndThenTheDirectPainting()
    {
        Desk desk;
        desk.hold(1);
        QSignalSpy changed(&desk.cache, &PageCache::changed);
        QCOMPARE(desk.draw(1), paper());
        QTRY_COMPARE(changed.size(), 1);
        const QImage wanted = desk.direct(1);
        const QImage blurred = desk.draw(1);
        QVERIFY(!desk.cache.isSharp());
        QVERIFY(blurred != wanted);
        QVERIFY(distance(blurred, wanted) < distance(paper(), wanted) / 4);

        desk.release();
        QTRY_VERIFY(desk.isSharp(1));
        QCOMPARE(desk.draw(1), wanted);
    }

    void shouldShowTheEarlierScaleUntilTheNewOneIsPainted()
    {
        Desk desk;
        QTRY_VERIFY(desk.isSharp(1));
        desk.hold();
        const QImage wanted = desk.direct(1, 1.5 * zoom);
        const QImage scaled = desk.draw(1, 1.5 * zoom);
        QVERIFY(!desk.cache.isSharp());
        QVERIFY(distance(scaled, wanted) < distance(paper(1.5 * zoom), wanted) / 10);
    }

    void shouldNotPaintWhatWasScrolledAway()
    {
        Desk desk;
        desk.work.mustWaitForTheEnd = true;
        desk.draw(1);
        QTRY_COMPARE(desk.work.all().size(), 1);
        desk.draw(2);
        QTRY_COMPARE(desk.work.abandoned.load(), 1);
        desk.work.mustWaitForTheEnd = false;
        QTRY_VERIFY(desk.isSharp(2));
        QCOMPARE(desk.draw(2), desk.direct(2));
        const auto begun = desk.work.all();
        for (int i = 1; i < begun.size(); ++i)
            QCOMPARE(begun.at(i).first, 2);
    }

    void shouldPaintAnAbandonedTileAgainWhenItIsWantedAgain()
    {
        Desk desk;
        desk.hold();
        desk.draw(1);
        QTRY_COMPARE(desk.work.all().size(), 1);
        desk.draw(2);
        desk.draw(1);
        desk.release();
        QTRY_VERIFY(desk.isSharp(1));
        QCOMPARE(desk.work.all().at(1), desk.work.all().at(0));
    }

    void shouldUseNothingOfAClosedDocument()
    {
        Desk desk;
        desk.work.mustWaitForTheEnd = true;
        desk.draw(1);
        QTRY_COMPARE(desk.work.all().size(), 1);
        const QPointer<TilePainter> painter = desk.cache.findChild<TilePainter *>();
        QSignalSpy changed(&desk.cache, &PageCache::changed);
        desk.cache.clear();
        QTRY_VERIFY(!painter);
        QCOMPARE(desk.work.abandoned.load(), 1);
        QVERIFY(changed.isEmpty());
        desk.hold();
        QCOMPARE(desk.draw(1), paper());
    }

    void shouldEndWhilePainting()
    {
        Work work;
        work.mustWaitForTheEnd = true;
        {
            PageCache cache;
            drawn(cache, TestContent(work, 1));
            QTRY_COMPARE(work.all().size(), 1);
        }
        QCOMPARE(work.abandoned.load(), 1);
        QCOMPARE(work.all().size(), 1);
    }

    void shouldPaintAFileAsItsContentDoes()
    {
        // Qt rounds the places in a scaled picture by the edge of what it paints on.
        for (const auto &[file, most] :
             {std::pair{"text.ofd", 0.0}, {"paths.ofd", 0.0}, {"image.ofd", 0.1}}) {
            Document document;
            QString error;
            QVERIFY2(document.open(QDir(OFD_SAMPLES).filePath(file), &error), qPrintable(error));
            const PageContent &content = *document.contentOf(0);
            const QSizeF size = document.sizeOf(0);
            PageCache cache;
            QTRY_VERIFY((drawn(cache, content, zoom, size), cache.isSharp()));
            const QImage tiled = drawn(cache, content, zoom, size);
            const QImage wanted = direct(content, zoom, size);
            QVERIFY2(tiled == wanted || distance(tiled, wanted) < most, file);
        }
    }

    void shouldNeverBeBlankOnZoomingAndCloseAtAnyTime()
    {
        for (int round = 0; round < 12; ++round) {
            Document document;
            QString error;
            QVERIFY(document.open(QDir(OFD_SAMPLES).filePath("text.ofd"), &error));
            PageView view(document);
            view.resize(600, 800);
            view.setZoomMode(ZoomMode(150)); // With scroll bars from the beginning.
            view.show();
            QVERIFY(QTest::qWaitForWindowExposed(&view));
            QTRY_VERIFY(view.isSharp());
            for (int step = 0; step <= round; ++step) {
                view.setZoomMode(ZoomMode::next(view.percent(), step % 6 < 3));
                const QImage seen = view.viewport()->grab().toImage();
                if (step < round)
                    continue;
                QTRY_VERIFY(view.isSharp());
                const QImage sharp = view.viewport()->grab().toImage();
                QCOMPARE(seen.size(), sharp.size());
                QImage blank = sharp;
                blank.fill(Qt::white);
                QVERIFY(distance(seen, sharp) <= distance(blank, sharp) * 2 / 3);
            }
            view.setLayoutMode(LayoutMode::SingleFlow);
            view.viewport()->repaint();
        }
    }

    void shouldScrollThousandsOfPagesWithoutEffort()
    {
        constexpr int pages = 10000;
        Work work;
        Document document;
        for (int i = 0; i < pages; ++i) {
            Page page;
            page.content = std::make_shared<TestContent>(work, i);
            document.insertPage(i, page, QString());
        }
        PageView view(document);
        view.resize(1200, 900);
        view.setZoomMode(ZoomMode(100));
        view.setLayoutMode(LayoutMode::SingleFlow);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QTRY_VERIFY(view.isSharp());

        QVERIFY(timeOfStep(*view.verticalScrollBar()) < mostOfStep);
        view.setCurrentPage(pages - 1);
        QTRY_VERIFY(view.isSharp());
        QCOMPARE(work.all().last().first, pages - 1);

        ThumbnailList thumbnails(document);
        thumbnails.resize(200, 600);
        thumbnails.show();
        QVERIFY(QTest::qWaitForWindowExposed(&thumbnails));
        const int before = work.all().size();
        QVERIFY(timeOfStep(*thumbnails.verticalScrollBar()) < mostOfStep);
        thumbnails.scrollToBottom();
        QTRY_COMPARE(work.all().last().first, pages - 1);
        // How many came into sight depends on how fast the machine is, but most were passed by.
        QVERIFY(work.all().size() - before < pages / 2);
    }
};

QTEST_MAIN(PaintingTest)
#include "tst_painting.moc"
