// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestHost.h"
#include "tests/support/Use.h"

#include <QApplication>
#include <QDir>
#include <QTest>

/** Descriptions that crashed an earlier version of the toolbar, and the shipped ones. */
class FuzzCorpusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSurviveEveryUse_data()
    {
        QTest::addColumn<QString>("path");
        QStringList paths = QString(SEEDS).split(':');
        const QDir corpus(CORPUS);
        const QStringList files = corpus.entryList({"*.xml"}, QDir::Files);
        QVERIFY(!files.isEmpty());
        for (const QString &file : files)
            paths.append(corpus.filePath(file));
        for (const QString &path : std::as_const(paths))
            QTest::newRow(qPrintable(path.section('/', -2))) << path;
    }

    void shouldSurviveEveryUse()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
        const QByteArray description = file.readAll();
        for (const int skin : {marodi, lum}) {
            for (const auto alignment : {ToolBarLeft, ToolBarCenter, ToolBarRight}) {
                const auto widgetsBefore = QApplication::allWidgets().size();
                useDescription(description, skin, alignment);
                QVERIFY(!QApplication::activePopupWidget());
                const auto widgetsKept = QApplication::allWidgets().size() - widgetsBefore;
                // Qt creates a few widgets of its own for the first window and the first tooltip.
                QVERIFY2(widgetsKept <= 4, qPrintable(QString::number(widgetsKept)));
            }
        }
    }
};

QTEST_MAIN(FuzzCorpusTest)
#include "tst_fuzzcorpus.moc"
