// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ReadingOrder.h"

#include <QTest>

namespace {

using Rects = QVector<QRectF>;

/** Lines of a column, 5 high and 7 apart. */
Rects column(qreal left, qreal top, qreal width, int lines)
{
    Rects rects;
    for (int i = 0; i < lines; ++i)
        rects.append(QRectF(left, top + 7 * i, width, 5));
    return rects;
}

Rects shuffled(const Rects &inOrder, int step)
{
    Rects rects;
    for (int i = 0; i < inOrder.size(); ++i)
        rects.append(inOrder.at((i * step + 3) % inOrder.size()));
    return rects;
}

} // namespace

/** Pieces of a page are given in another order and must come back in that of the table. */
class TestReadingOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFollowTheReader_data()
    {
        QTest::addColumn<Rects>("inOrder");
        const QRectF heading(20, 10, 170, 5);
        const QRectF footing(20, 280, 170, 5);
        QTest::newRow("lines") << column(20, 20, 170, 7);
        QTest::newRow("columns") << column(20, 20, 80, 8) + column(110, 20, 80, 5);
        QTest::newRow("columns that are not aligned")
            << column(20, 20, 80, 8) + column(110, 22, 80, 9);
        QTest::newRow("heading, columns, footing")
            << Rects{heading} + column(20, 30, 80, 9) + column(110, 30, 80, 8) + Rects{footing};
        QTest::newRow("a picture's title between columns")
            << column(20, 20, 80, 4) + column(110, 20, 80, 4) + Rects{QRectF(20, 60, 170, 5)}
                   + column(20, 80, 80, 4) + column(110, 80, 80, 5);
        QTest::newRow("rows of a table")
            << Rects{QRectF(20, 20, 12, 5), QRectF(60, 21, 25, 5), QRectF(120, 20, 20, 5),
                     QRectF(20, 30, 15, 5), QRectF(60, 30, 20, 5), QRectF(120, 29, 9, 5),
                     QRectF(20, 40, 11, 5), QRectF(60, 40, 28, 5), QRectF(120, 40, 8, 5)};
        QTest::newRow("larger letter in a line")
            << Rects{QRectF(20, 20, 10, 9), QRectF(31, 23, 60, 5), QRectF(20, 34, 70, 5)};
    }

    void shouldFollowTheReader()
    {
        QFETCH(Rects, inOrder);
        for (const int step : {1, int(inOrder.size()) - 1}) {
            const Rects given = shuffled(inOrder, step);
            Rects read;
            for (const int index : Ofd::readingOrder(given))
                read.append(given.at(index));
            QCOMPARE(read, inOrder);
        }
    }

    void shouldEndSoonOnAnyPage()
    {
        Rects crosses;
        for (int i = 0; i < 5000; ++i)
            crosses.append(QRectF(i % 97, i % 89, 60 + i % 7, 5 + i % 3));
        QCOMPARE(Ofd::readingOrder(crosses).size(), crosses.size());
        crosses.resize(500000);
        QCOMPARE(Ofd::readingOrder(crosses).size(), crosses.size());
    }
};

QTEST_APPLESS_MAIN(TestReadingOrder)
#include "tst_readingorder.moc"
