// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/OfdFiles.h"

#include <QTest>

/** What of a page is not painted is named, so that nobody takes the page for complete. */
class TestLeftOut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameWhatIsLeftOut()
    {
        const auto document = OfdFiles::opened("left-out");
        QVERIFY(document);
        document->page(0);
        const QHash<QString, int> named{
            {"音频和视频", 1}, {"未知的图元", 2}, {"缺失的资源", 4}, {"残缺的图形", 1}};
        QCOMPARE(document->unsupported.all(), named);
    }

    void shouldNameNothingOfACompletePage()
    {
        for (const char *name : {"clips", "blending", "boundaries", "text-directions"}) {
            const auto document = OfdFiles::opened(name);
            QVERIFY(document);
            document->page(0);
            QVERIFY2(document->unsupported.isEmpty(), name);
        }
    }
};

QTEST_MAIN(TestLeftOut)
#include "tst_leftout.moc"
