// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/SearchPanel.h"
#include "shell/BodyChooser.h"
#include "tests/ofd/PackageMaker.h"
#include "tests/reader/ReaderHost.h"

#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>

#include <array>

namespace {

constexpr int manyPages = 3000;

/** The search dock with the view of an open file. */
struct Finder
{
    explicit Finder(const QString &fileName)
    {
        QString error;
        QVERIFY2(document.open(fileName, &error), qPrintable(error));
        view.resize(400, 300);
        panel.show();
    }

    void find(const QString &word, bool isDown = true)
    {
        SearchOption option;
        option.content = word;
        option.direction = isDown ? 1 : 0;
        panel.search(option);
    }

    /** The page of the current hit, counted from 1; 0 without a hit. */
    int currentPage() const
    {
        const QListWidgetItem *item = list->currentItem();
        return item ? item->text().section(QChar(u'　'), 0, 0).toInt() : 0;
    }

    Document document;
    PageView view{document};
    SearchPanel panel{document, view};
    const TextSearch &search = *panel.findChild<TextSearch *>();
    const QListWidget *list = panel.findChild<QListWidget *>();
    const QLabel *label = panel.findChild<QLabel *>();
    QPushButton *stopButton = panel.findChild<QPushButton *>();
};

} // namespace

/** Long documents, which the reader shows and searches before it knows them, and several in a file.
 */
class ReaderPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        keepUsersSettings();
        write(m_long, PackageMaker::documentOf(manyPages));
        PackageMaker::Entries entries = PackageMaker::documentOf(9);
        for (const int page : {1, 4, 7})
            entries[PackageMaker::pagePath(page)] = PackageMaker::pageOf("needle");
        entries.remove(PackageMaker::pagePath(5));
        write(m_short, entries);
    }

    void shouldBeginAtTheCurrentPage()
    {
        const QList<std::tuple<int, bool, int>> rows{
            // The page on show, whether the search goes down, and the number of the first page.
            {4, true, 5}, {2, true, 5}, {8, true, 2}, {4, false, 5}, {6, false, 5}, {0, false, 8}};
        for (const auto &[from, isDown, first] : rows) {
            Finder finder(m_short);
            finder.view.setCurrentPage(from);
            finder.find("needle", isDown);
            QTRY_VERIFY(!finder.search.isActive());
            QCOMPARE(finder.list->count(), 12);
            QCOMPARE(finder.currentPage(), first);
            QCOMPARE(finder.view.currentPage(), first - 1);
            // Four hits further is the next page with hits, from the last one to the first.
            for (int i = 0; i < 4; ++i)
                finder.find("needle", isDown);
            const QList<int> order = isDown ? QList<int>{2, 5, 8} : QList<int>{8, 5, 2};
            QCOMPARE(finder.currentPage(), order.at((order.indexOf(first) + 1) % 3));
        }
    }

    void shouldShowHitsWhileItGoesOn()
    {
        Finder finder(m_long);
        finder.panel.hide(); // It opens when the search takes long.
        finder.view.setCurrentPage(manyPages / 2);
        finder.find("number");
        QTRY_VERIFY(finder.list->count() > 0);
        QVERIFY(finder.search.isActive());
        QCOMPARE(finder.currentPage(), manyPages / 2 + 1);
        const auto *progress = finder.panel.findChild<QProgressBar *>();
        QTRY_VERIFY(progress->isVisible() && finder.stopButton->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!finder.search.isActive(), 120000);
        QVERIFY(!progress->isVisible() && !finder.stopButton->isVisible());
        // Four on each page, in the order of the pages although the first ones were found last.
        QCOMPARE(finder.list->count(), 4 * manyPages);
        for (int row = 0; row < finder.list->count(); row += 401)
            QVERIFY(
                finder.list->item(row)->text().startsWith(QStringLiteral("%1　").arg(row / 4 + 1)));
        QCOMPARE(finder.currentPage(), manyPages / 2 + 1);
        QCOMPARE(finder.view.currentPage(), manyPages / 2);
    }

    void shouldStopWhenTheUserSaysSo()
    {
        Finder finder(m_long);
        finder.find("number");
        QTRY_VERIFY(finder.stopButton->isVisible() && finder.list->count() > 0);
        finder.stopButton->click();
        QVERIFY(!finder.search.isActive() && !finder.stopButton->isVisible());
        const int count = finder.list->count();
        QVERIFY(count > 0 && count < 4 * manyPages);
        QVERIFY2(finder.label->text().contains("只查找了"), qPrintable(finder.label->text()));
        // The same question goes to the next of the hits that there are.
        finder.find("number");
        QCoreApplication::processEvents();
        QVERIFY(!finder.search.isActive());
        QCOMPARE(finder.list->count(), count);
        QCOMPARE(finder.list->currentRow(), 1);
    }

    void shouldEndWithTheDocument()
    {
        Finder finder(m_long);
        finder.find("number");
        QTRY_VERIFY(finder.list->count() > 0);
        QString error;
        QVERIFY(finder.document.open(m_short, &error));
        QVERIFY(!finder.search.isActive());
        QCOMPARE(finder.list->count(), 0);
        finder.find("needle");
        QTRY_VERIFY(!finder.search.isActive());
        QCOMPARE(finder.list->count(), 12);
    }

    void shouldForgetTheSearchBefore()
    {
        Finder finder(m_long);
        finder.find("number");
        QTRY_VERIFY(finder.list->count() > 0);
        finder.find(QStringLiteral("number %1 of").arg(manyPages - 1));
        QTRY_VERIFY_WITH_TIMEOUT(!finder.search.isActive(), 120000);
        QCOMPARE(finder.list->count(), 4);
        QCOMPARE(finder.currentPage(), manyPages - 1);
        finder.find("nowhere");
        QTRY_VERIFY_WITH_TIMEOUT(!finder.search.isActive(), 120000);
        QVERIFY(finder.list->count() == 0 && finder.label->text().contains("没有找到"));
    }

    void shouldNotJumpWhenTheSizesOfPagesBecomeKnown()
    {
        constexpr int taller = 50;
        constexpr qreal more = 297 * 96 / 25.4;
        PackageMaker::Entries entries = PackageMaker::documentOf(500);
        for (int page = 300; page < 300 + taller; ++page)
            entries[PackageMaker::pagePath(page)] = PackageMaker::pageOf("tall", "0 0 210 594");
        const QString file = m_folder.filePath("sizes.ofd");
        write(file, entries);
        Finder finder(file);
        finder.view.setLayoutMode(LayoutMode::SingleFlow);
        finder.view.setZoomMode(ZoomMode(100));
        finder.view.show();
        finder.view.setCurrentPage(400);
        QScrollBar *bar = finder.view.verticalScrollBar();
        bar->setValue(bar->value() + 77);
        const int before = bar->value();
        QCOMPARE(finder.view.currentPage(), 400);
        QTRY_VERIFY(bar->value() != before);
        const qreal factor = finder.view.logicalDpiX() / 96.0;
        QVERIFY2(qAbs(bar->value() - before - taller * more * factor) < 3,
                 qPrintable(QString::number(bar->value() - before)));
        QCOMPARE(finder.view.currentPage(), 400);
    }

    void shouldSelectFromTheLineBesideThePoint()
    {
        // Two columns of lines 6 high; the second line on the left is short.
        const QList<QRectF> rects{{20, 20, 80, 6},  {20, 30, 10, 6},  {20, 40, 80, 6},
                                  {120, 25, 60, 6}, {120, 35, 60, 6}, {120, 45, 60, 6}};
        Page page;
        for (const QRectF &rect : rects) {
            page.lines.append({int(page.text.size()), 2, rect});
            page.boxes << rect.adjusted(0, 0, -rect.width() / 2, 0)
                       << rect.adjusted(rect.width() / 2, 0, 0, 0) << QRectF();
            page.text += "ab\n";
        }
        const QList<QPair<QPointF, int>> rows{{{5, 33}, 3},    {{95, 33}, 5},   {{95, 35.5}, 5},
                                              {{105, 31}, 5},  {{30, 38.5}, 6}, {{199, 38}, 14},
                                              {{110, 36}, 12}, {{60, 2}, 1}};
        for (const auto &[point, position] : rows)
            QVERIFY2(page.positionAt(point) == position, qPrintable(QString::number(point.x())));
        page.text[9] = QChar(u'中');
        QCOMPARE(page.wordAt({95, 23}).length, 2);
        QCOMPARE(page.wordAt({145, 28}).length, 1);
    }

    void shouldOfferEachDocumentOfAFile()
    {
        PackageMaker::Entries entries = PackageMaker::documentOf(2);
        QByteArray body = entries["OFD.xml"];
        body = body.mid(body.indexOf("<ofd:DocBody>"));
        body.truncate(body.indexOf("</ofd:OFD>"));
        QByteArray untitled = body;
        untitled.replace("Doc_0", "Doc_1").replace("<ofd:Title>First</ofd:Title>", "");
        const QByteArray damaged = QByteArray(body).replace("Doc_0", "Doc_2");
        entries["OFD.xml"].replace("</ofd:OFD>", untitled + damaged + "</ofd:OFD>");
        const QByteArray root = entries["Doc_0/Document.xml"];
        entries["Doc_1/Document.xml"] = QByteArray(root).replace("0 0 210 297", "0 0 70 99");
        entries["Doc_2/Document.xml"] = "damaged";
        const QString file = m_folder.filePath("several.ofd");
        write(file, entries);
        ReaderHost reader;
        auto *chooser = reader.window.findChild<BodyChooser *>();
        reader.window.open(m_short);
        reader.window.show();
        QVERIFY(!chooser->isVisible());
        QString error;
        reader.window.openOrExplain(file, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QVERIFY(chooser->isVisible() && chooser->count() == 3 && chooser->currentIndex() == 0);
        QVERIFY(chooser->itemText(0).endsWith("First") && chooser->itemText(1).endsWith("文档 2"));
        const qreal before = reader.view->percent();
        Q_EMIT chooser->bodyChosen(1);
        QCOMPARE(chooser->currentIndex(), 1);
        QVERIFY(reader.view->percent() > before);
        // The damaged one and those that are not there are refused, and the open one stays.
        for (const int body : {2, 3}) {
            Q_EMIT chooser->bodyChosen(body);
            QCOMPARE(chooser->currentIndex(), 1);
            auto *refusal = reader.window.findChild<QMessageBox *>();
            QVERIFY(refusal && refusal->isVisible());
            refusal->close();
            QTRY_VERIFY(!reader.window.findChild<QMessageBox *>());
        }
    }

private:
    static void write(const QString &fileName, const PackageMaker::Entries &entries)
    {
        QVERIFY(PackageMaker::write(fileName, PackageMaker::archive(entries)));
    }

    const QTemporaryDir m_folder;
    const QString m_long = m_folder.filePath("long.ofd");
    const QString m_short = m_folder.filePath("short.ofd");
};

QTEST_MAIN(ReaderPagesTest)
#include "tst_readerpages.moc"
