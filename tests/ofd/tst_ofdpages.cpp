// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "ofd/PageText.h"
#include "ofd/Painter.h"
#include "tests/ofd/OfdFiles.h"
#include "tests/ofd/PackageMaker.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <ctime>
#include <thread>
#include <vector>

namespace {

std::shared_ptr<const Ofd::Document> opened(const PackageMaker::Entries &entries)
{
    return OfdFiles::read(PackageMaker::archive(entries));
}

/** A page of this many objects, each of which takes about half a kilobyte. */
Ofd::Page pageOf(int objects)
{
    Ofd::Page page;
    page.layers.append(std::make_shared<const Ofd::Objects>(objects));
    return page;
}

} // namespace

/** Reading the pages of a document when they are asked for. */
class TestOfdPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAnEmptyPageForADamagedSample()
    {
        for (const auto &[name, reason] : {std::pair{"damaged-composite-loop", "循环引用"},
                                           {"damaged-template-loop", "循环引用"},
                                           {"damaged-depth", "嵌套过深"},
                                           {"damaged-font-size", "字号"},
                                           {"damaged-dashes", "虚线"}}) {
            QString error;
            const auto document = Ofd::read(
                QDir(QStringLiteral(OFD_SAMPLES)).filePath(name + QStringLiteral(".ofd")), &error);
            QVERIFY2(document, qPrintable(error));
            const auto page = document->page(0);
            QVERIFY2(page->layers.isEmpty() && page->fault.contains(reason), name);
            QVERIFY2(page->fault.indexOf("。") == page->fault.size() - 1, qPrintable(page->fault));
            QCOMPARE(document->unsupported.value("无法显示的页面"), 1);
        }
    }

    void shouldLetADamagedPageCostOnlyItself()
    {
        const QByteArray whole = PackageMaker::pageOf("text");
        const QList<std::pair<QByteArray, const char *>> rows{
            // The content of the page, nothing for none at all, and what is said of it.
            {"", "没有这一页"},
            {whole.left(whole.size() / 2), "不是正确的 XML"},
            {"PNG", "不是正确的 XML"},
            {PackageMaker::pageOf("text", "0 0 1e6 1"), "页面尺寸"}};
        for (const auto &[content, reason] : rows) {
            PackageMaker::Entries entries = PackageMaker::documentOf(3);
            entries.remove(PackageMaker::pagePath(1));
            if (!content.isEmpty())
                entries.insert(PackageMaker::pagePath(1), content);
            const auto document = opened(entries);
            QVERIFY(document);
            // As long as nobody looks at the page, nothing is wrong.
            for (const int page : {0, 2})
                QVERIFY(document->page(page)->fault.isNull());
            QVERIFY(document->unsupported.isEmpty() && document->pages->fault(1).isNull());
            const QString fault = document->page(1)->fault;
            QVERIFY2(fault.contains(reason), qPrintable(fault));
            QCOMPARE(document->page(1)->fault, fault);
            QCOMPARE(document->pages->fault(1), fault);
            QCOMPARE(document->unsupported.value("无法显示的页面"), 1);
            QCOMPARE(document->area(1), QRectF(0, 0, 210, 297));
        }
    }

    void shouldPaintAndNameADamagedPage()
    {
        PackageMaker::Entries entries = PackageMaker::documentOf(2);
        entries.remove(PackageMaker::pagePath(1));
        Document document;
        open(document, entries);
        QSignalSpy learnt(&document, &Document::learnt);
        QVERIFY(document.faultOf(1).isEmpty() && document.file().leftOut().isEmpty());
        QImage sheet(document.sizeOf(1).toSize(), QImage::Format_RGB32);
        sheet.fill(Qt::white);
        const QImage blank = sheet;
        QPainter painter(&sheet);
        document.contentOf(1)->painter().paint(painter, {1});
        QVERIFY(sheet != blank);
        QTRY_VERIFY(!learnt.isEmpty());
        QVERIFY(document.faultOf(1).startsWith("第 2 页"));
        QVERIFY(document.file().leftOut().contains("无法显示的页面"));
        QVERIFY(document.page(1).text.isEmpty() && document.faultOf(0).isEmpty());
        // A picture can be found to be damaged long after its page was read.
        QTest::qWait(200);
        learnt.clear();
        document.file().document->leaveOut("image", "image.png");
        QTRY_VERIFY(!learnt.isEmpty());
    }

    void shouldOpenTheFirstDocumentThatIsInOrder()
    {
        const PackageMaker::Entries whole = PackageMaker::documentOf(1);
        const QByteArray root = whole["Doc_0/Document.xml"];
        for (const QByteArray &broken :
             {QByteArray(), QByteArray("damaged"), QByteArray(root).replace("210", "0")}) {
            PackageMaker::Entries entries = whole;
            entries["OFD.xml"].replace("</ofd:OFD>",
                                       "<ofd:DocBody><ofd:DocRoot>Doc_1/Document.xml</ofd:DocRoot>"
                                       "</ofd:DocBody></ofd:OFD>");
            entries["Doc_1/Document.xml"] = root;
            entries["Doc_0/Document.xml"] = broken;
            if (broken.isEmpty())
                entries.remove("Doc_0/Document.xml");
            const auto next = opened(entries);
            QVERIFY(next && next->body == 1);
            QCOMPARE(next->bodies.size(), 2);
            const QString kind = QStringLiteral("无法打开的文档（%1）");
            QCOMPARE(next->unsupported.value(kind.arg(next->bodies.first())), 1);
        }
    }

    void shouldReadAnnotationsAndTemplatesWithTheirPageOnly()
    {
        PackageMaker::Entries entries = PackageMaker::documentOf(3);
        QByteArray &root = entries["Doc_0/Document.xml"];
        root.replace("</ofd:CommonData>",
                     "<ofd:TemplatePage ID=\"80\" BaseLoc=\"T.xml\"/></ofd:CommonData>");
        root.replace("</ofd:Document>", "<ofd:Annotations>A.xml</ofd:Annotations></ofd:Document>");
        entries["Doc_0/A.xml"] = "<Annotations><Page PageID=\"1\"><FileLoc>B.xml</FileLoc></Page>"
                                 "</Annotations>";
        entries["Doc_0/B.xml"] = "damaged";
        entries["Doc_0/T.xml"] = "damaged";
        for (const int page : {1, 2})
            entries[PackageMaker::pagePath(page)].replace(
                "<ofd:Content>", "<ofd:Template TemplateID=\"80\"/><ofd:Content>");
        const auto document = opened(entries);
        QVERIFY(document && document->unsupported.isEmpty());
        QVERIFY(document->page(0)->fault.isNull() && !document->page(0)->layers.isEmpty());
        QCOMPARE(document->unsupported.value("无法读取的批注"), 1);
        // On the second page the damaged template must not be taken for a circular one.
        for (const int page : {1, 2})
            QVERIFY(document->page(page)->fault.contains("T.xml"));
        entries["Doc_0/A.xml"] = "damaged";
        const auto withoutIndex = opened(entries);
        QVERIFY(withoutIndex && withoutIndex->page(0)->fault.isNull());
        QCOMPARE(withoutIndex->unsupported.value("无法读取的批注"), 1);
    }

    void shouldLearnTheSizesOfAllPagesWithoutReadingThem()
    {
        constexpr int pages = 600;
        PackageMaker::Entries entries = PackageMaker::documentOf(pages);
        entries[PackageMaker::pagePath(0)] = PackageMaker::pageOf("early", "0 0 100 50");
        entries[PackageMaker::pagePath(pages - 1)] = PackageMaker::pageOf("late", "0 0 300 50");
        Document document;
        QSignalSpy sizes(&document, &Document::sizesChanged);
        open(document, entries);
        QCOMPARE(qRound(document.sizeOf(0).width()), 378);
        QCOMPARE(qRound(document.largestSize().width()), 794);
        QTRY_COMPARE(int(sizes.size()), 1);
        QCOMPARE(qRound(document.sizeOf(pages - 1).width()), 1134);
        QCOMPARE(document.largestSize().width(), document.sizeOf(pages - 1).width());
        QCOMPARE(document.sizeOf(pages - 2), document.sizeOf(1));
    }

    void shouldForgetPagesBeyondItsLimit()
    {
        int reads = 0;
        const Ofd::PageStore store(40, QRectF(), [&reads](int) {
            ++reads;
            return pageOf(10000);
        });
        const auto held = store.page(0);
        for (int page = 0; page < 40; ++page)
            store.page(page);
        QCOMPARE(reads, 40);
        store.page(39);
        QCOMPARE(reads, 40);
        // Forty pages take some 200 MB, which is more than the store keeps.
        store.page(0);
        QCOMPARE(reads, 41);
        QCOMPARE(int(held->layers.first()->size()), 10000);
    }

    void shouldServeSeveralThreads()
    {
        constexpr int pages = 60;
        const auto document = opened(PackageMaker::documentOf(pages));
        QVERIFY(document);
        std::atomic<int> faults{0};
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&, thread] {
                Ofd::Painter painter(document);
                for (int i = 0; i < pages; ++i) {
                    // Two go the same way, one comes towards them, and one measures.
                    const int page = thread == 2 ? pages - 1 - i : i;
                    if (thread == 3) {
                        document->pages->measure(page);
                        faults += document->area(page).width() == 210 ? 0 : 1;
                        continue;
                    }
                    const QString text = textOf(*document, page, painter.fonts()).text;
                    const QString begin = QStringLiteral("Page number %1 of").arg(page + 1);
                    faults += text.startsWith(begin) ? 0 : 1;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(int(faults), 0);
        QVERIFY(document->unsupported.isEmpty());
    }

    void shouldOpenTenThousandPagesAtOnce()
    {
        constexpr int pages = 10000;
        constexpr int mostSeconds = 10;
        const QString file = m_folder.filePath("large.ofd");
        QVERIFY(PackageMaker::write(file, PackageMaker::archive(PackageMaker::documentOf(pages))));
        Document document;
        QString error;
        // Processor time, which does not depend on other programs; half a second is usual.
        const std::clock_t start = std::clock();
        QVERIFY2(document.open(file, &error), qPrintable(error));
        QVERIFY((std::clock() - start) / CLOCKS_PER_SEC < mostSeconds);
        QCOMPARE(document.pageCount(), pages);
        QVERIFY(document.page(pages - 1).text.startsWith("Page number 10000 of"));
    }

private:
    void open(Document &document, const PackageMaker::Entries &entries) const
    {
        const QString file = m_folder.filePath("made.ofd");
        QVERIFY(PackageMaker::write(file, PackageMaker::archive(entries)));
        QString error;
        QVERIFY2(document.open(file, &error), qPrintable(error));
    }

    const QTemporaryDir m_folder;
};

QTEST_MAIN(TestOfdPages)
#include "tst_ofdpages.moc"
