// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

/** Each source in the folder features/ is made, opened and painted as the kept picture shows. */
class TestOfdFeatures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPaintWhatTheSourceDescribes_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList files = QDir(QStringLiteral(OFD_MADE)).entryList({"*.ofd"});
        QVERIFY(!files.isEmpty());
        for (const QString &file : files) {
            const QString name = file.left(file.lastIndexOf('.'));
            QTest::newRow(qPrintable(name)) << name;
        }
    }

    void shouldPaintWhatTheSourceDescribes()
    {
        QFETCH(QString, name);
        const auto document = OfdFiles::opened(name);
        QVERIFY(document);
        for (int page = 0; page < document->pageCount(); ++page) {
            const QString picture =
                page == 0 ? name : QStringLiteral("%1-%2").arg(name).arg(page + 1);
            const QString difference =
                OfdFiles::difference(OfdFiles::painted(document, page), picture);
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
        }
        // What is not painted is named, so that nobody takes the page for complete.
        static const QHash<QString, QHash<QString, int>> leftOut{
            {"colours", {{"无法绘制的底纹", 2}}},
            {"image-objects", {{"图像", 1}}},
            {"left-out",
             {{"音频和视频", 1}, {"未知的图元", 2}, {"缺失的资源", 4}, {"残缺的图形", 1}}}};
        QCOMPARE(document->unsupported.all(), leftOut.value(name));
    }

    void shouldPaintTheRealFilesAsBefore_data()
    {
        QTest::addColumn<QString>("file");
        const QDir folder(qEnvironmentVariable("MRTOOLBAR_SAMPLES"));
        if (folder.path() == QLatin1String("."))
            QSKIP("MRTOOLBAR_SAMPLES does not name the folder of the real files");
        const QStringList names = folder.entryList({"*.ofd"});
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    void shouldPaintTheRealFilesAsBefore()
    {
        QFETCH(QString, file);
        QString error;
        const auto document = Ofd::read(file, &error);
        QVERIFY2(document, qPrintable(error));
        for (int page = 0; page < document->pageCount(); ++page) {
            const QImage whole = OfdFiles::painted(document, page);
            // A small picture shows what is where, and not how the system's fonts are drawn.
            const QImage small =
                whole.scaled(whole.size() / 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const QString name =
                QStringLiteral("real-%1-%2").arg(QFileInfo(file).baseName()).arg(page + 1);
            const QString difference = OfdFiles::difference(small, name);
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
            QVERIFY(document->page(page)->fault.isEmpty());
        }
    }
};

QTEST_MAIN(TestOfdFeatures)
#include "tst_ofdfeatures.moc"
