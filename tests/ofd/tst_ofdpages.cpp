// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include <QDir>
#include <QTest>

/** Reading the pages of a document one by one. */
class TestOfdPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAnEmptyPageForADamagedOne()
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
};

QTEST_MAIN(TestOfdPages)
#include "tst_ofdpages.moc"
