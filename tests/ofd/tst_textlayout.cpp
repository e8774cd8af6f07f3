// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/TextLayout.h"

#include <QTest>

Q_DECLARE_METATYPE(Ofd::GlyphRange)

/** Where the characters of a run are placed, in the system's fonts, whose widths are unknown. */
class TestTextLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepTheGivenDistancesWithoutTheEmbeddedFont_data()
    {
        QTest::addColumn<QVector<Ofd::GlyphRange>>("ranges");
        QTest::newRow("characters only") << QVector<Ofd::GlyphRange>();
        QTest::newRow("a glyph each") << QVector<Ofd::GlyphRange>{{0, 4, {7, 8, 9, 10}}};
        QTest::newRow("one for two") << QVector<Ofd::GlyphRange>{{1, 2, {7}}};
        QTest::newRow("two for one") << QVector<Ofd::GlyphRange>{{1, 1, {7, 8}}};
    }

    void shouldKeepTheGivenDistancesWithoutTheEmbeddedFont()
    {
        QFETCH(QVector<Ofd::GlyphRange>, ranges);
        const QVector<Ofd::PlacedGlyph> glyphs = laidOut({"iWiW", {1, 2}, {3, 2, 5}, {}, ranges});
        QCOMPARE(glyphs.size(), 4);
        const QList<qreal> starts{1, 4, 6, 11};
        for (int i = 0; i < starts.size(); ++i) {
            QCOMPARE(glyphs.at(i).place.map(QPointF()), QPointF(starts.at(i), 2));
            QCOMPARE(glyphs.at(i).text, QString(i % 2 ? "W" : "i"));
        }
    }

    void shouldNarrowLettersToTheirDistancesButNotTheLastOne()
    {
        const QVector<Ofd::PlacedGlyph> glyphs = laidOut({"WiW", {}, {4, 1}, {}, {}});
        QCOMPARE(glyphs.size(), 3);
        QVERIFY(glyphs.first().place.m11() < size);
        QCOMPARE(glyphs.last().place.m11(), size);
        QCOMPARE(glyphs.last().width, glyphs.last().glyph->advance);
    }

    void shouldPutUprightLettersAnEmBelowEachOther()
    {
        const QVector<Ofd::PlacedGlyph> glyphs = laidOut({"iW", {}, {}, {}, {}}, 90);
        QCOMPARE(glyphs.last().place.map(QPointF()), QPointF(0, size));
    }

private:
    static constexpr qreal size = 10;

    QVector<Ofd::PlacedGlyph> laidOut(const Ofd::TextRun &run, int readDirection = 0)
    {
        Ofd::Text text;
        text.size = size;
        text.readDirection = readDirection;
        return layOut(text, run, m_face);
    }

    Ofd::Face m_face{Ofd::Font(), QByteArray(), false, false};
};

QTEST_MAIN(TestTextLayout)
#include "tst_textlayout.moc"
