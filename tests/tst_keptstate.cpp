// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/KeptState.h"

#include <QTest>

class tst_keptstate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadWhatItWrites();
    void shouldReadAsMuchAsFits_data();
    void shouldReadAsMuchAsFits();
    void shouldWriteNoMoreThanItReads();
};

void tst_keptstate::shouldReadWhatItWrites()
{
    KeptState state;
    state.tab = "a;b=c,d:e%20\n视图";
    state.isFolded = true;
    state.shown = QStringList{"qbar_f_open", "打,开"};
    state.hidden = QStringList{"x"};
    state.added = QStringList();
    state.faces = {{"v:zoom", "a,b"}, {"c", "d"}};
    state.scale = "1.5";
    state.scheme = "dark";

    const QString text = state.toText();
    QVERIFY(!text.contains('\n'));
    const KeptState read = KeptState::fromText(text).value();
    QCOMPARE(read.tab, state.tab);
    QCOMPARE(read.isFolded, state.isFolded);
    QCOMPARE(read.shown, state.shown);
    QCOMPARE(read.hidden, state.hidden);
    QVERIFY(read.added == QStringList() && !read.found);
    QCOMPARE(read.faces, state.faces);
    QCOMPARE(read.scale, state.scale);
    QCOMPARE(read.scheme, state.scheme);
}

void tst_keptstate::shouldReadAsMuchAsFits_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("another version") << "mrtoolbar/7;tab=t";
    QTest::newRow("unknown fields") << "mrtoolbar/1;new=1;;=;tab=t;x";
    QTest::newRow("wrong values") << "mrtoolbar/1;folded=yes;faces=a,:,b:;shown=,,;tab=t";
    QTest::newRow("too long a name") << "mrtoolbar/1;scale=" + QString(101, 'x') + ";tab=t";
}

void tst_keptstate::shouldReadAsMuchAsFits()
{
    QFETCH(QString, text);
    const KeptState state = KeptState::fromText(text).value();
    QCOMPARE(state.tab, QString("t"));
    QVERIFY(!state.isFolded);
    QVERIFY(state.faces.isEmpty() && state.shown.isEmpty() && state.scale.isEmpty());
}

void tst_keptstate::shouldWriteNoMoreThanItReads()
{
    KeptState state;
    for (int i = 0; i < 1000; ++i) {
        const QString name = QString::number(i).rightJustified(100, QChar(0x4e00));
        state.shown.append(name);
        state.faces.insert(name, name);
    }
    state.hidden = state.shown;
    state.added = state.shown;
    state.found = state.shown;
    const auto read = KeptState::fromText(state.toText());
    QVERIFY(read);
    QCOMPARE(read->shown, QStringList(state.shown.mid(0, 100)));
    QCOMPARE(read->faces.size(), 100);
}

QTEST_GUILESS_MAIN(tst_keptstate)
#include "tst_keptstate.moc"
