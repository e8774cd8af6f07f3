// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "pages/MarkPainter.h"
#include "pages/OfdSaving.h"
#include "pages/PagePainter.h"
#include "panels/MarkEntry.h"
#include "tests/ofd/OfdFiles.h"
#include "tests/ofd/PackageMaker.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>

using PackageMaker::bytesOf;

namespace {

const QString actsFile = OfdFiles::path("acts");
constexpr qreal unit = 96 / 25.4;

Mark markOf(MarkKind kind, int page)
{
    Mark mark;
    mark.kind = kind;
    mark.page = page;
    mark.points << QPointF(20, 20) << QPointF(120, 20) << QPointF(120, 60) << QPointF(20, 60);
    mark.text = QStringLiteral("批注");
    mark.colour = QColor(200, 30, 30);
    return mark;
}

bool areSame(const Mark &one, const Mark &other)
{
    return one.kind == other.kind && one.page == other.page && one.points == other.points
           && one.text == other.text && one.colour == other.colour && one.width == other.width
           && one.creator == other.creator && one.date == other.date;
}

bool save(const Document &document, const QString &fileName)
{
    QString error;
    return PackageMaker::write(fileName, OfdSaving::archiveOf(document, &error));
}

} // namespace

/** Marks are saved into the file, where other readers see them and this one reads them again. */
class ReaderSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSaveMarksAndReadThemAgain()
    {
        qputenv("USER", "张三");
        const QTemporaryDir folder;
        const QString saved = folder.filePath("saved.ofd");
        QVERIFY(QFile::copy(actsFile, saved));
        QString error;
        Document document;
        QVERIFY(document.open(saved, &error));
        QCOMPARE(document.marks().size(), 2);
        QCOMPARE(OfdSaving::archiveOf(document, &error), bytesOf(actsFile));
        for (int kind = 0; kind < int(MarkKind::Annotation); ++kind) {
            const bool isOnAll = MarkKind(kind) == MarkKind::Watermark;
            Mark mark = markOf(MarkKind(kind), isOnAll ? everyPage : kind % 2);
            mark.points << QPointF(1 / 3.0, 20.125);
            mark.text = QStringLiteral(" 第一行\n<&> 𠮷 ");
            mark.colour.setAlpha(77);
            mark.width = 1.2 * unit;
            document.addMark(mark, QString());
        }
        document.deleteMark(document.marks().first().id, QString());
        document.setMarkText(document.marks().first().id, QStringLiteral("改过"));
        const QList<Mark> before = document.marks();
        QVERIFY(save(document, saved));
        QVERIFY2(document.open(saved, &error), qPrintable(error));
        QCOMPARE(document.marks().size(), before.size());
        QCOMPARE(document.marks().first().text, QStringLiteral("改过"));
        for (const Mark &mark : before) {
            const auto isIt = [&mark](const Mark &other) { return areSame(mark, other); };
            QVERIFY2(mark.kind == MarkKind::Annotation
                         || std::any_of(document.marks().begin(), document.marks().end(), isIt),
                     qPrintable(markName(mark.kind)));
        }
        // A second save of what was read changes nothing, and the marks of old files can be
        // removed.
        QCOMPARE(OfdSaving::archiveOf(document, &error), bytesOf(saved));
        while (!document.marks().isEmpty())
            document.deleteMark(document.marks().last().id, QString());
        QVERIFY(save(document, saved) && document.open(saved, &error));
        QVERIFY(document.marks().isEmpty());
    }

    void shouldObeyWhatAnAnnotationSaysOfItself()
    {
        const QList<std::array<const char *, 3>> rows{
            // What the annotation says, how the list shows it, and where it is painted.
            {"", "", "screen print"},
            {"Print=\"false\"", "", "screen"},
            {"Visible=\"false\"", "　不可见", ""},
            {"ReadOnly=\"true\"", "　只读", "screen print"}};
        for (const auto &[attribute, states, seen] : rows) {
            const QTemporaryDir folder;
            const QString file = folder.filePath("annotation.ofd");
            const QByteArray archive = OfdFiles::replaced(
                *OfdFiles::opened("acts"), QStringLiteral("Doc_0/Annots/Page_0.xml"), "ID=\"922\"",
                QByteArray("ID=\"922\" ") + attribute);
            QString error;
            Document document;
            QVERIFY(PackageMaker::write(file, archive) && document.open(file, &error));
            const QString entry = MarkEntry::textOf(document.marks().at(1));
            QVERIFY2(entry.startsWith(QStringLiteral("第 1 页　图形") + states + "\n"), attribute);
            QStringList found;
            for (const bool forPrint : {false, true}) {
                QImage image(240, 160, QImage::Format_RGB32);
                QPainter painter(&image);
                painter.scale(4 / unit, 4 / unit);
                PageDecoration decoration;
                decoration.forPrint = forPrint;
                paintPage(painter, document, 0, PageColours::of(Background_Default), decoration);
                if (image.pixelColor(40, 100) == QColor(200, 40, 40))
                    found.append(forPrint ? "print" : "screen");
            }
            QCOMPARE(found.join(' '), QString(seen));
        }
    }

    void shouldSaveBookmarksAndNothingElse()
    {
        const QTemporaryDir folder;
        const QString saved = folder.filePath("saved.ofd");
        const auto rootOf = [](const Document &document) {
            return document.file().document->package->read("Doc_0/Document.xml");
        };
        const auto namesOf = [](const Document &document) {
            QStringList names;
            for (const NamedPlace &place : document.bookmarks())
                names.append(QStringLiteral("%1: %2").arg(place.name).arg(place.place.page));
            return names;
        };
        QString error;
        Document document;
        QVERIFY(document.open(actsFile, &error));
        // Only the line breaks around the root element are lost.
        const QByteArray before = rootOf(document).replace("?>\n", "?>").trimmed();
        const QString first = QStringLiteral("首页: 0");
        const QString second = QStringLiteral("第 2 页: 1");
        document.addBookmark(1);
        document.addBookmark(1);
        QCOMPARE(namesOf(document), QStringList({first, second}));
        QVERIFY(document.isModified() && save(document, saved) && document.open(saved, &error));
        QCOMPARE(namesOf(document), QStringList({first, second}));
        QCOMPARE(rootOf(document),
                 QByteArray(before).replace("</ofd:Bookmarks>",
                                            "<ofd:Bookmark Name=\"第 2 页\"><ofd:Dest "
                                            "Type=\"XYZ\" PageID=\"2\" Left=\"0\" Top=\"0\" "
                                            "Zoom=\"0\"/></ofd:Bookmark></ofd:Bookmarks>"));

        document.removeBookmark(0);
        document.insertPage(0, Page(), QString());
        QCOMPARE(namesOf(document), QStringList("第 2 页: 2"));
        document.addBookmark(1);
        QCOMPARE(namesOf(document), QStringList({"第 2 页: 2", "第 2 页 (2): 1"}));
        document.addBookmark(0); // Of a page that is not saved.
        QVERIFY(save(document, saved));
        Document again;
        QVERIFY(again.open(saved, &error));
        QCOMPARE(namesOf(again), QStringList({second, "第 2 页 (2): 0"}));
        while (!again.bookmarks().isEmpty())
            again.removeBookmark(0);
        QVERIFY(save(again, saved) && again.open(saved, &error));
        QVERIFY(!rootOf(again).contains("Bookmark"));
        again.addBookmark(0);
        again.undoStack().undo();
        QVERIFY(again.bookmarks().isEmpty() && !again.isModified());
        again.addBookmark(0);
        QVERIFY(save(again, saved) && again.open(saved, &error));
        QCOMPARE(namesOf(again), QStringList("第 1 页: 0"));
        QVERIFY(rootOf(again).contains("</ofd:Bookmarks><ofd:Annotations>"));
    }

    /** Another reader paints the appearance; this one paints the mark. */
    void shouldShowEveryMarkToOtherReaders()
    {
        const QImage plain = OfdFiles::painted(OfdFiles::opened("acts"));
        for (int kind = 0; kind < int(MarkKind::Annotation); ++kind) {
            QString error;
            Document document;
            QVERIFY(document.open(actsFile, &error));
            document.addMark(markOf(MarkKind(kind), 0), QString());
            const auto saved = OfdFiles::read(OfdSaving::archiveOf(document, &error));
            QVERIFY(saved);
            const QImage appearance = OfdFiles::painted(saved);
            QImage mark = plain;
            QPainter painter(&mark);
            painter.scale(OfdFiles::pixelsPerMillimetre / unit,
                          OfdFiles::pixelsPerMillimetre / unit);
            paintMark(painter, document.marks().last());
            painter.end();
            int others = 0;
            for (int y = 0; y < mark.height(); ++y) {
                for (int x = 0; x < mark.width(); ++x) {
                    const QColor a = mark.pixelColor(x, y);
                    const QColor b = appearance.pixelColor(x, y);
                    others += qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) > 90 ? 1 : 0;
                }
            }
            const QString name = markName(MarkKind(kind));
            QVERIFY2(appearance != plain, qPrintable(name));
            QVERIFY2(others < mark.width() * mark.height() / 100, qPrintable(name));
        }
    }

    void shouldAddMarksToRealFiles()
    {
        const QDir samples(qEnvironmentVariable("MRTOOLBAR_SAMPLES", "/nowhere"));
        const QStringList names = samples.entryList({"*.ofd"});
        if (names.isEmpty())
            QSKIP("MRTOOLBAR_SAMPLES names no folder with OFD files");
        const QTemporaryDir folder;
        for (const QString &name : names) {
            QString error;
            Document document;
            QVERIFY(document.open(samples.filePath(name), &error));
            const int before = int(document.marks().size());
            document.addMark(markOf(MarkKind::Note, 0), QString());
            document.addBookmark(document.pageCount() - 1);
            QVERIFY(save(document, folder.filePath(name)));
            Document again;
            QVERIFY2(again.open(folder.filePath(name), &error), qPrintable(name + error));
            QCOMPARE(again.marks().size(), before + 1);
            QCOMPARE(again.pageCount(), document.pageCount());
            QCOMPARE(again.bookmarks().last().place.page, document.pageCount() - 1);
            const auto isNote = [](const Mark &mark) { return mark.kind == MarkKind::Note; };
            QVERIFY(std::any_of(again.marks().begin(), again.marks().end(), isNote));
        }
    }
};

QTEST_MAIN(ReaderSavingTest)
#include "tst_readersaving.moc"
