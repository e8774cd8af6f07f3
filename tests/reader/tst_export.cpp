// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"
#include "pages/Export.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

/** The streams of a PDF file, unpacked. */
QList<QByteArray> streamsOf(const QByteArray &pdf)
{
    QList<QByteArray> streams;
    const QByteArray begin = ">>\nstream\n";
    for (int at = pdf.indexOf(begin); at >= 0; at = pdf.indexOf(begin, at)) {
        at += int(begin.size());
        const QByteArray packed = pdf.mid(at, pdf.indexOf("endstream", at) - at);
        // A length that stands before the data is only a hint.
        streams.append(packed.startsWith('\x78') ? qUncompress(QByteArray("\0\0\x10\0", 4) + packed)
                                                 : packed);
    }
    return streams;
}

/** What a viewer finds: the codes that are shown, by the table of the font for copying. */
QString textOf(const QByteArray &pdf)
{
    static const QRegularExpression range(
        "<([0-9A-Fa-f]{4})> <([0-9A-Fa-f]{4})> <([0-9A-Fa-f]{4})>");
    static const QRegularExpression list("<([0-9A-Fa-f]{4})> <[0-9A-Fa-f]{4}> \\[(.*?)\\]");
    static const QRegularExpression shown("<([0-9A-Fa-f]+)> Tj");
    QHash<int, QChar> unicode;
    const QList<QByteArray> streams = streamsOf(pdf);
    for (const QByteArray &stream : streams) {
        const QString text = QString::fromLatin1(stream);
        if (!text.contains("beginbfrange"))
            continue;
        for (auto found = range.globalMatch(text); found.hasNext();) {
            const auto match = found.next();
            for (int i = match.captured(1).toInt(nullptr, 16);
                 i <= match.captured(2).toInt(nullptr, 16); ++i)
                unicode.insert(i, QChar(match.captured(3).toInt(nullptr, 16) + i
                                        - match.captured(1).toInt(nullptr, 16)));
        }
        for (auto found = list.globalMatch(text); found.hasNext();) {
            const auto match = found.next();
            int code = match.captured(1).toInt(nullptr, 16);
            const QStringList targets = match.captured(2).split(' ', Qt::SkipEmptyParts);
            for (const QString &target : targets)
                unicode.insert(code++, QChar(target.mid(1, 4).toInt(nullptr, 16)));
        }
    }
    QString result;
    for (const QByteArray &stream : streams) {
        for (auto found = shown.globalMatch(QString::fromLatin1(stream)); found.hasNext();) {
            const QString codes = found.next().captured(1);
            for (int i = 0; i + 4 <= codes.size(); i += 4)
                result += unicode.value(codes.mid(i, 4).toInt(nullptr, 16), QChar(u'?'));
        }
    }
    return result;
}

} // namespace

class TestExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindTheTextOfAPageInThePdf()
    {
        QTemporaryDir folder;
        Document document;
        QString error;
        QVERIFY2(document.open(QDir(OFD_SAMPLES).filePath("text.ofd"), &error), qPrintable(error));
        const QString fileName = folder.filePath("text.pdf");
        QVERIFY2(Export::write(document, fileName, &error), qPrintable(error));
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray pdf = file.readAll();
        QString wanted;
        for (int page = 0; page < document.pageCount(); ++page)
            wanted += document.page(page).text;
        QCOMPARE(textOf(pdf), wanted.remove(QRegularExpression("\\s")));
    }

    void shouldSaveAPictureForEachPage()
    {
        QTemporaryDir folder;
        Document document;
        QString error;
        QVERIFY2(document.open(QDir(OFD_SAMPLES).filePath("text.ofd"), &error), qPrintable(error));
        for (const char *name : {"a.png", "a.pdf", "a.txt"}) {
            QVERIFY(!Export::write(document, folder.filePath(name), &error,
                                   [](int page) { return page < 1; }));
            QVERIFY(error.contains("取消") && QDir(folder.path()).isEmpty());
        }
        QVERIFY2(Export::write(document, folder.filePath("a.png"), &error), qPrintable(error));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList({"a-1.png", "a-2.png"}));
        QVERIFY2(!Export::write(document, folder.filePath("a.png"), &error),
                 "It overwrote pictures");
        QVERIFY2(error.contains("a-1.png"), qPrintable(error));
        QVERIFY(Export::writtenNames(document, "b.png").startsWith("b-1.png"));
        const QImage second(folder.filePath("a-2.png"));
        QCOMPARE(second.size(), (document.sizeOf(1) * 2).toSize());
        QVERIFY2(second.convertToFormat(QImage::Format_Indexed8).colorCount() > 2, "It is blank");
    }
};

QTEST_MAIN(TestExport)
#include "tst_export.moc"
