// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include <QDir>
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
    }
};

QTEST_MAIN(TestOfdFeatures)
#include "tst_ofdfeatures.moc"
